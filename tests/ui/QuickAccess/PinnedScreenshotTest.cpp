// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"
#include "tests/support/SamplePictures.h"
#include "tests/ui/QuickAccess/FloatsFixture.h"
#include "ui/QuickAccess/PinGeometry.h"
#include "ui/QuickAccess/PinnedMenu.h"
#include "ui/QuickAccess/PinnedScreenshotWindow.h"

#include <QMenu>
#include <QScreen>
#include <QSignalSpy>
#include <QWheelEvent>

using namespace tessaly;
using namespace tessaly::test;
using namespace std::chrono_literals;

class PinnedScreenshotTest : public QObject {
    Q_OBJECT

    static PinnedScreenshotWindow *pinned(FloatsFixture &fixture, const RasterImage &image, std::optional<QRect> near)
    {
        fixture.pins.pin(image, near);
        return fixture.shown<PinnedScreenshotWindow>().value(0);
    }
    static PinnedScreenshotWindow *pinned(FloatsFixture &fixture)
    {
        return pinned(fixture, FloatsFixture::picture({ 300, 200 }), QRect(400, 400, 200, 120));
    }

    static void turn(QWidget *window, QPoint pixels, QPoint angle, Qt::KeyboardModifiers keys = {}, QPointF at = {})
    {
        const Qt::ScrollPhase phase = pixels.isNull() ? Qt::NoScrollPhase : Qt::ScrollUpdate;
        QWheelEvent event(at, window->mapToGlobal(at), pixels, angle, Qt::NoButton, keys, phase, false);
        QCoreApplication::sendEvent(window, &event);
    }

    static QList<QAction *> actionsOf(PinnedScreenshotWindow &window, QMenu &menu)
    {
        fillPinnedMenu(menu, window);
        return menu.findChildren<QAction *>();
    }
    static QAction *action(const QList<QAction *> &actions, const QString &words)
    {
        const auto found = std::ranges::find(actions, words, &QAction::text);
        return found == actions.end() ? nullptr : *found;
    }

    static inline QTemporaryDir s_folder;

public:
    static void initMain() { useThreeScreens(s_folder); }

private Q_SLOTS:
    void isExactToThePixel_data()
    {
        columns<QPoint, double>("where", "scale");
        row("1x", QPoint(500, 300), 1.0);
        row("2x", QPoint(1700, 300), 2.0);
        row("1.5x", QPoint(3300, 300), 1.5);
    }

    void isExactToThePixel()
    {
        QFETCH(QPoint, where);
        QFETCH(double, scale);
        FloatsFixture fixture;
        const QImage pixels = samplePicture({ 301, 177 }, Transparency::None);
        auto *window = pinned(fixture, RasterImage::fromPixels(pixels, scale), QRect(where, QSize(10, 10)));
        QCOMPARE(window->devicePixelRatioF(), scale);
        QCOMPARE(window->zoom(), 1.0);
        QImage seen = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
        seen.setDevicePixelRatio(1);
        const int edge = qRound(scale);
        QCOMPARE(seen.copy(QRect(QPoint(edge, edge), pixels.size())), pixels);
        QCOMPARE(seen.pixelColor(0, 0), QColor(0x80, 0x80, 0x80));
        QVERIFY(window->screen()->availableGeometry().contains(window->place()));
    }

    void theWheelChangesOpacity_data()
    {
        columns<QPoint, QPoint, int, double>("pixels", "angle", "times", "opacity");
        row("a notch down", QPoint(), QPoint(0, -120), 1, 0.95);
        row("two fingers", QPoint(0, -40), QPoint(0, -300), 1, 0.8);
        row("never fainter than a fifth", QPoint(), QPoint(0, -120), 100, 0.2);
        row("up from opaque", QPoint(), QPoint(0, 120), 3, 1.0);
    }

    void theWheelChangesOpacity()
    {
        QFETCH(QPoint, pixels);
        QFETCH(QPoint, angle);
        QFETCH(int, times);
        QFETCH(double, opacity);
        FloatsFixture fixture;
        auto *window = pinned(fixture);
        for (int turns = 0; turns < times; ++turns)
            turn(window, pixels, angle);
        QCOMPARE(window->opacity(), opacity);
        QVERIFY(std::abs(window->windowOpacity() - opacity) < 0.005);
    }

    void zoomKeepsRatioAndPoint()
    {
        FloatsFixture fixture;
        auto *window = pinned(fixture);
        const QPointF at(76, 151); // a quarter and three quarters, beside the edge
        const QPointF fixed = window->place().topLeft() + at;
        for (int turns = 0; turns < 4; ++turns)
            turn(window, {}, { 0, 120 }, Qt::ControlModifier, fixed - window->place().topLeft());
        const QRect larger = window->place();
        QVERIFY(window->zoom() > 1.4 && window->zoom() < 1.6);
        QCOMPARE(larger.size(), (QSizeF(300, 200) * window->zoom()).toSize() + QSize(2, 2));
        const QPointF share((fixed.x() - larger.x()) / larger.width(), (fixed.y() - larger.y()) / larger.height());
        QVERIFY(std::abs(share.x() - 0.25) < 0.02);
        QVERIFY(std::abs(share.y() - 0.75) < 0.02);
        QCOMPARE(window->opacity(), 1.0);
        QTest::mouseDClick(window, Qt::LeftButton);
        QCOMPARE(window->place().size(), QSize(302, 202));
        QNativeGestureEvent pinch(
            Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, at, at, at, 0.5, {});
        QCoreApplication::sendEvent(window, &pinch);
        QCOMPARE(window->zoom(), 1.5);
    }

    void lockedOnesAreCounted()
    {
        FloatsFixture fixture;
        QSignalSpy changes(&fixture.pins, &PinnedScreenshotController::countsChanged);
        auto *window = pinned(fixture);
        pinned(fixture);
        QCOMPARE(fixture.pins.count(), 2);
        QCOMPARE(changes.count(), 2);
        QMenu menu;
        action(actionsOf(*window, menu), "Let Clicks Pass Through")->trigger();
        QVERIFY(window->isLocked());
        QVERIFY(fixture.layers.floats[window->windowHandle()].passesClicks);
        QCOMPARE(fixture.pins.lockedCount(), 1);
        QCOMPARE(changes.count(), 3);
        QVERIFY(fixture.toasts.shown.value(0).startsWith("Clicks now pass through. To unlock, choose Unlock Pinned"));
        QCOMPARE(fixture.toasts.lastDuration, 4000ms);
        fixture.pins.unlockAll();
        QVERIFY(!fixture.layers.floats[window->windowHandle()].passesClicks);
        QCOMPARE(fixture.pins.lockedCount(), 0);
        QCOMPARE(fixture.toasts.shown.size(), 1);
        fixture.pins.closeAll();
        QCOMPARE(fixture.pins.count(), 0);
        QTRY_VERIFY(fixture.shown<PinnedScreenshotWindow>().isEmpty());
    }

    void keysMoveAndAct()
    {
        FloatsFixture fixture;
        int edited = 0;
        fixture.pins.openEditor = [&edited](const RasterImage &) { ++edited; };
        auto *window = pinned(fixture);
        const QPoint corner = window->place().topLeft();
        QTest::keyClick(window, Qt::Key_Left);
        QTest::keyClick(window, Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(window->place().topLeft(), corner + QPoint(-1, 10));
        QTest::keyClick(window, Qt::Key_C, Qt::ControlModifier);
        QTRY_VERIFY(fixture.clipboard.content);
        QCOMPARE(fixture.toasts.shown, QStringList("Copied to clipboard"));
        QTest::keyClick(window, Qt::Key_Return);
        QTRY_COMPARE(edited, 1);
        QTest::keyClick(window, Qt::Key_Escape);
        QCOMPARE(fixture.pins.count(), 0);
    }

    /// The panel for saving is asked for the format that was used last, even when the pin goes at once.
    void savesInTheUsualFormat()
    {
        FloatsFixture fixture;
        QVERIFY(fixture.settings.set(SettingKeys::exportFormat, "webp"));
        fixture.panels.image = { .path = fixture.folder.filePath("a.webp"), .format = ExportFormat::Webp };
        auto *window = pinned(fixture);
        QMenu menu;
        action(actionsOf(*window, menu), "Save…")->trigger();
        window->closePin();
        QTRY_COMPARE(fixture.panels.imageRequests.size(), 1);
        QCOMPARE(fixture.panels.imageRequests.first().format, ExportFormat::Webp);
        QVERIFY(QFile::exists(fixture.folder.filePath("a.webp")));
    }

    void isDraggedWithinReach()
    {
        FloatsFixture fixture;
        auto *window = pinned(fixture);
        const QPoint corner = window->place().topLeft();
        const auto move = [window](QPointF global) {
            QMouseEvent event(QEvent::MouseMove, {}, global, Qt::NoButton, Qt::LeftButton, {});
            QCoreApplication::sendEvent(window, &event);
        };
        QTest::mousePress(window, Qt::LeftButton, {}, { 20, 20 });
        const QPointF start = window->mapToGlobal(QPointF(20, 20));
        move(start + QPointF(2, 1));
        QCOMPARE(window->place().topLeft(), corner); // a hand that shakes
        move(start + QPointF(50, -30));
        QCOMPARE(window->place().topLeft(), corner + QPoint(50, -30));
        move(start + QPointF(-9000, 0));
        QCOMPARE(window->place().right() + 1, 32);
        QTest::mouseRelease(window, Qt::LeftButton);
        move(start);
        QCOMPARE(window->place().right() + 1, 32);
    }

    void theMenuTellsTheState()
    {
        FloatsFixture fixture;
        auto *window = pinned(fixture);
        QMenu menu;
        const QList<QAction *> actions = actionsOf(*window, menu);
        QVERIFY(action(actions, "100 %")->isChecked());
        action(actions, "20 %")->trigger();
        QCOMPARE(window->opacity(), 0.2);
        QVERIFY(std::ranges::all_of(actions, &QAction::isEnabled));
        fixture.layers.above = false;
        QMenu other;
        QCOMPARE(
            std::ranges::count_if(actionsOf(*window, other), [](const QAction *each) { return !each->isEnabled(); }),
            1);
    }
};

QTEST_MAIN(PinnedScreenshotTest)
#include "PinnedScreenshotTest.moc"
