// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/OverlayController.h"
#include "core/Desktop/TextOffer.h"
#include "core/Preferences/Settings.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/FakeLayers.h"
#include "tests/support/FakeScreen.h"
#include "tests/support/OffscreenScreens.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"
#include "ui/Overlay/CaptureModeBar.h"
#include "ui/Overlay/SelectionView.h"

#include <QApplication>
#include <QPushButton>
#include <QScreen>
#include <QToolButton>

using namespace tessaly;

class OverlayControllerTest : public QObject {
    Q_OBJECT

    Settings settings { QString() };
    test::FakeLayers layers;
    test::FakeScreen screen;
    test::FakeWindows windows;
    WindowPicker picker { windows };
    test::FakeClipboard clipboard;
    std::unique_ptr<OverlayController> overlay;
    int completions = 0;
    OverlayResult result;
    qsizetype shownAtCompletion = 0;

    int begin(OverlayMode mode = OverlayMode::Region, bool withPictures = true)
    {
        completions = 0;
        result = {};
        return overlay->begin({ mode, screen.monitors, withPictures ? screen.pictures : DisplaySnapshots() },
            [this](const OverlayResult &given) {
                ++completions;
                result = given;
                shownAtCompletion = layers.covers.size();
            });
    }

    SelectionView *view(const QString &name) const
    {
        for (QWindow *window : layers.covers)
            if (window->screen()->name() == name)
                return dynamic_cast<SelectionView *>(window);
        return nullptr;
    }

    static void mouse(SelectionView *view, QEvent::Type type, QPoint pixel, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPointF place = QPointF(pixel) / view->devicePixelRatio();
        QMouseEvent event(type, place, view->mapToGlobal(place), type == QEvent::MouseMove ? Qt::NoButton : button,
            type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        QCoreApplication::sendEvent(view, &event);
    }

    static void drag(SelectionView *view, QPoint from, QPoint to)
    {
        mouse(view, QEvent::MouseButtonPress, from);
        mouse(view, QEvent::MouseMove, to);
        mouse(view, QEvent::MouseButtonRelease, to);
    }

    void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QCoreApplication::sendEvent(layers.covers.value(0), &event);
    }

    const RegionSelection *selection() const { return result ? std::get_if<RegionSelection>(&*result) : nullptr; }

    static CaptureModeBar *bar()
    {
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (auto *bar = qobject_cast<CaptureModeBar *>(widget); bar && bar->isVisible())
                return bar;
        return nullptr;
    }

private Q_SLOTS:
    void init()
    {
        screen.monitors.clear();
        screen.pictures.clear();
        int left = 0;
        QList<QScreen *> screens = QGuiApplication::screens();
        std::ranges::sort(screens, {}, [](const QScreen *each) { return each->geometry().x(); });
        for (const QScreen *each : screens) {
            const double scale = each->devicePixelRatio();
            const QSize pixels = (QSizeF(each->size()) * scale).toSize();
            QImage picture(pixels, QImage::Format_RGB32);
            for (int y = 0; y < pixels.height(); ++y)
                for (int x = 0; x < pixels.width(); ++x)
                    picture.setPixel(x, y, qRgb(x & 255, y & 255, (x + y) % 2 * 255));
            screen.add(each->name(), QRect(QPoint(left, 0), pixels), scale, picture);
            left += pixels.width();
        }
        windows.listable = true;
        windows.list = { { 7, "Letter", "Writer", 1, QRectF(500, 100, 300, 200) },
            { 8, "", "Below", 1, QRectF(0, 0, 600, 400) } };
        QVERIFY(picker.prepare());
        QVERIFY(settings.set(SettingKeys::adjustRegionBeforeCapture, false));
        QVERIFY(settings.set(SettingKeys::showMagnifierWhileSelecting, true));
        clipboard.content.reset();
        layers.transparency = false;
        overlay = std::make_unique<OverlayController>(
            OverlayController::Surroundings { layers, picker, settings, clipboard });
    }

    void cleanup()
    {
        overlay.reset();
        QVERIFY(layers.covers.isEmpty());
    }

    void aDragIsExactToThePixel_data()
    {
        test::columns<QString, QPoint, QRect>("monitor", "to", "rect");
        for (const QString name : { "one", "half", "two" }) {
            QTest::newRow(qPrintable(name)) << name << QPoint(204, 158) << QRect(101, 57, 103, 101);
            QTest::newRow(qPrintable(name + " to a neighbour")) << name << QPoint(-300, 158) << QRect(0, 57, 101, 101);
        }
    }

    void aDragIsExactToThePixel()
    {
        QFETCH(QString, monitor);
        QFETCH(QPoint, to);
        begin();
        QCOMPARE(layers.covers.size(), 3);
        drag(view(monitor), { 101, 57 }, to);
        QCOMPARE(completions, 1);
        QCOMPARE(shownAtCompletion, 0);
        QVERIFY(selection());
        QCOMPARE(selection()->display.name, monitor);
        QTEST(selection()->pixelRect, "rect");
        QVERIFY(!overlay->isOpen());
    }

    void adjustsBeforeItEnds()
    {
        QVERIFY(settings.set(SettingKeys::adjustRegionBeforeCapture, true));
        begin();
        SelectionView *two = view("two");
        drag(two, { 100, 100 }, { 300, 200 });
        QVERIFY(overlay->isOpen());
        QTRY_VERIFY(bar());
        QVERIFY(bar()->findChildren<QPushButton *>().last()->isVisible()); // Capture
        key(Qt::Key_Right); // wherever the key comes in
        key(Qt::Key_Right, Qt::ShiftModifier);
        drag(two, { 362, 195 }, { 372, 215 }); // the bottom right grip is at 360, 200
        QCOMPARE(two->model().pixelRect(), QRect(120, 100, 250, 120));
        drag(view("one"), { 10, 10 }, { 60, 60 });
        QVERIFY(!two->model().isValid());
        key(Qt::Key_Return);
        QCOMPARE(selection()->display.name, "one");
        QCOMPARE(selection()->pixelRect, QRect(10, 10, 50, 50));
    }

    void leavesAtOnce_data()
    {
        test::columns<bool, bool>("dragging", "byMouse");
        test::row("escape", false, false);
        test::row("escape while dragging", true, false);
        test::row("right button", false, true);
        test::row("right button while dragging", true, true);
    }

    void leavesAtOnce()
    {
        QFETCH(bool, dragging);
        QFETCH(bool, byMouse);
        begin();
        SelectionView *one = view("one");
        if (dragging) {
            mouse(one, QEvent::MouseButtonPress, { 10, 10 });
            mouse(one, QEvent::MouseMove, { 90, 90 });
        }
        if (byMouse)
            mouse(one, QEvent::MouseButtonPress, { 90, 90 }, Qt::RightButton);
        else
            key(Qt::Key_Escape);
        QCOMPARE(completions, 1);
        QVERIFY(!result);
        QCOMPARE(shownAtCompletion, 0);
    }

    void tooLittleIsNothing()
    {
        begin();
        drag(view("one"), { 10, 10 }, { 13, 60 });
        key(Qt::Key_Return);
        mouse(view("one"), QEvent::MouseButtonDblClick, { 13, 60 });
        QCOMPARE(completions, 0);
        key(Qt::Key_3);
        QVERIFY(std::holds_alternative<FullScreenSelection>(*result));
    }

    void aDoubleClickConfirms()
    {
        begin();
        key(Qt::Key_Down);
        mouse(layers.covers.isEmpty() ? nullptr : view("one"), QEvent::MouseMove, { 1, 1 });
        for (const QString name : { "one", "half", "two" })
            if (view(name) && view(name)->model().isValid())
                mouse(view(name), QEvent::MouseButtonDblClick, { 30, 30 });
        QCOMPARE(completions, 1);
        QCOMPARE(selection()->pixelRect.size(), QSize(240, 240) * selection()->display.scale);
    }

    /// The window reaches from the first monitor to the second.
    void picksAWindow()
    {
        begin();
        key(Qt::Key_2);
        SelectionView *half = view("half");
        mouse(half, QEvent::MouseMove, { 100, 150 });
        mouse(half, QEvent::MouseButtonPress, { 100, 150 });
        QCOMPARE(completions, 1);
        QCOMPARE(selection()->window->id, 7u);
        QCOMPARE(selection()->display.name, "half");
        QCOMPARE(selection()->pixelRect, QRect(0, 100, 200, 200));
    }

    void withoutWindowsThereIsNoSuchMode()
    {
        windows.listable = false;
        begin(OverlayMode::Window);
        QTRY_VERIFY(bar());
        QStringList titles;
        for (const auto *button : bar()->findChildren<QAbstractButton *>())
            titles += button->text();
        QCOMPARE(titles, QStringList({ "Region", "Full Screen", "Cancel", "Capture" }));
        drag(view("one"), { 10, 10 }, { 60, 60 });
        QVERIFY(!selection()->window);
    }

    void theBarIsClickedInThePicture()
    {
        begin();
        QTRY_VERIFY(bar());
        SelectionView *shown = nullptr;
        for (const QString name : { "one", "half", "two" })
            if (view(name)->screen()->geometry().contains(bar()->geometry().center()))
                shown = view(name);
        QVERIFY(shown);
        for (const auto *button : bar()->findChildren<QAbstractButton *>()) {
            if (button->text() != "Full Screen")
                continue;
            const QPoint place = bar()->pos() - shown->screen()->geometry().topLeft() + button->geometry().center();
            mouse(shown, QEvent::MouseButtonPress, place * shown->devicePixelRatio());
            mouse(shown, QEvent::MouseButtonRelease, place * shown->devicePixelRatio());
            break;
        }
        QCOMPARE(completions, 1);
        QVERIFY(std::holds_alternative<FullScreenSelection>(*result));
    }

    void tabWalksThroughTheBar()
    {
        begin();
        QTRY_VERIFY(bar());
        key(Qt::Key_Backtab); // the last one: Cancel
        key(Qt::Key_Space);
        QCOMPARE(completions, 1);
        QVERIFY(!result);
    }

    void theColorIsCopiedFromThePresentPictureOnly()
    {
        const int number = begin(OverlayMode::Region, false);
        SelectionView *two = view("two");
        mouse(two, QEvent::MouseMove, { 31, 160 });
        key(Qt::Key_C);
        QVERIFY(!clipboard.content);
        overlay->setSnapshots(screen.pictures, number - 1);
        key(Qt::Key_C);
        QVERIFY(!clipboard.content);
        overlay->setSnapshots(screen.pictures, number);
        key(Qt::Key_C, Qt::ControlModifier);
        QVERIFY(!clipboard.content);
        key(Qt::Key_C);
        QCOMPARE(TextOffer::textOf(clipboard), "#1FA0FF");

        clipboard.content.reset();
        QVERIFY(settings.set(SettingKeys::showMagnifierWhileSelecting, false));
        begin();
        mouse(view("two"), QEvent::MouseMove, { 31, 160 });
        key(Qt::Key_C);
        QVERIFY(!clipboard.content);
    }

    void givesUpWithoutItsMonitor()
    {
        overlay->prepare(OverlayUse::Later);
        begin();
        QScreen *lost = QGuiApplication::screens().at(1);
        Q_EMIT lost->geometryChanged(lost->geometry());
        QCOMPARE(completions, 1);
        QVERIFY(!result);
        begin();
        QCOMPARE(layers.covers.size(), 3);
    }

    void aNewOpeningEndsTheOneBefore()
    {
        int before = 0;
        overlay->begin(
            { OverlayMode::Region, screen.monitors }, [&](const OverlayResult &given) { before += given ? 10 : 1; });
        begin();
        QCOMPARE(before, 1);
        QCOMPARE(completions, 0);
        overlay->begin({ OverlayMode::Region, {} }, [&](const OverlayResult &given) { before += given ? 10 : 1; });
        QCOMPARE(before, 2);
        QVERIFY(!overlay->isOpen());
    }

    void saysWhatToDo()
    {
        begin();
        QTRY_VERIFY(bar());
        const auto *said = bar()->findChild<QWidget *>("announcement");
        QVERIFY(said->accessibleName().startsWith("Select the area to capture."));
        QVERIFY(said->accessibleName().endsWith("Press C to copy the color under the pointer."));
        mouse(view("two"), QEvent::MouseMove, { 31, 160 });
        key(Qt::Key_C);
        QCOMPARE(said->accessibleName(), "Copied color #1FA0FF");
        key(Qt::Key_Up);
        QVERIFY(said->accessibleName().startsWith("Selection ready."));
    }

    void theGroundIsDimmedButNotWhereItIsClear()
    {
        const QImage picture = screen.pictures.value(screen.monitors.first().id());
        QImage surface(picture.size(), QImage::Format_RGB32);
        surface.fill(Qt::magenta);
        const QRect clear(10, 20, 30, 40), changed(0, 0, 50, 50);
        SelectionPainter::paintGround(surface, 0, changed, picture, clear);
        QCOMPARE(surface.copy(clear & changed), picture.copy(clear & changed));
        QVERIFY(
            qRed(surface.pixel(9, 20)) < 9 && qBlue(surface.pixel(8, 21)) < 150 && qBlue(surface.pixel(8, 21)) > 100);
        QCOMPARE(surface.pixelColor(50, 49), QColor(Qt::magenta));
        QImage part(50, 16, QImage::Format_RGB32);
        SelectionPainter::paintGround(part, 32, { 0, 32, 50, 16 }, picture, clear);
        QCOMPARE(part, surface.copy(0, 32, 50, 16));
        QImage live(picture.size(), QImage::Format_ARGB32_Premultiplied);
        SelectionPainter::paintGround(live, 0, live.rect(), {}, clear);
        QCOMPARE(live.pixel(10, 20), 0u);
        QVERIFY(qAlpha(live.pixel(9, 20)) > 100 && qAlpha(live.pixel(9, 20)) < 128);
    }
};

int main(int argc, char **argv)
{
    const QTemporaryDir folder;
    // At 1, 1.5 and 2 pixels per point.
    test::useOffscreenScreens(folder,
        { { "one", 0, { 600, 400 }, 1 }, { "half", 600, { 900, 600 }, 1.5 }, { "two", 1500, { 1200, 800 }, 2 } });
    QApplication application(argc, argv);
    OverlayControllerTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "OverlayControllerTest.moc"
