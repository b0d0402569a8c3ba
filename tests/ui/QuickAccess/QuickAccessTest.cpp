// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"
#include "tests/ui/QuickAccess/FloatsFixture.h"
#include "ui/QuickAccess/QuickAccessButton.h"
#include "ui/QuickAccess/QuickAccessController.h"
#include "ui/QuickAccess/QuickAccessPanel.h"
#include "ui/QuickAccess/QuickAccessView.h"
#include "ui/Style/CaptureProperties.h"

#include <QPointer>
#include <QScreen>
#include <QSignalSpy>

using namespace tessaly;
using namespace tessaly::test;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(QuickAccessAction)

class QuickAccessTest : public QObject {
    Q_OBJECT

    struct Thumbnails : FloatsFixture {
        explicit Thumbnails(std::chrono::milliseconds lifetime = 1h, std::chrono::milliseconds afterHover = 1h) :
            controller({ settings, exports, router, &textCopier, pins, layers, toasts, lifetime, afterHover })
        {
            router.openEditor = [this](const RasterImage &image, const QString &title) {
                edited = image;
                editedTitle = title;
            };
        }

        QPointer<QuickAccessPanel> show(const RasterImage &image = picture({ 320, 200 }))
        {
            const QList<QuickAccessPanel *> before = shown<QuickAccessPanel>();
            controller.show(image);
            for (QuickAccessPanel *panel : shown<QuickAccessPanel>()) {
                if (!before.contains(panel))
                    return panel;
            }
            return nullptr;
        }

        RasterImage edited;
        QString editedTitle;
        QuickAccessController controller;
    };

    static void enter(QWidget *panel)
    {
        QEnterEvent event({ 5, 5 }, { 5, 5 }, {});
        QCoreApplication::sendEvent(panel, &event);
    }
    static void leave(QWidget *panel)
    {
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(panel, &event);
    }

    static inline QTemporaryDir s_folder;

public:
    static void initMain() { useThreeScreens(s_folder); }

private Q_SLOTS:
    void init() { QCursor::setPos(400, 400); }

    void theSeventhEndsTheOldest()
    {
        Thumbnails thumbnails;
        QList<QPointer<QuickAccessPanel>> panels;
        for (int count = 0; count < 7; ++count)
            panels += thumbnails.show();
        QTRY_VERIFY(!panels.first());
        QCOMPARE(thumbnails.shown<QuickAccessPanel>().size(), 6);
        // Newest nearest the corner, each above the one after it.
        QCOMPARE(panels.last()->restingPlace().bottomRight(), QPoint(1600 - 16 - 1, 1200 - 16 - 1));
        for (int index = 1; index + 1 < panels.size(); ++index)
            QCOMPARE(panels[index]->restingPlace().bottom() + 10, panels[index + 1]->restingPlace().top() - 1);
    }

    void slidesInWithoutTheFocus_data()
    {
        columns<QString, QPoint, QString, int, int>("corner", "pointer", "screen", "left", "outward");
        row("right", "bottomRight", QPoint(400, 400), "one", 1600 - 16 - 200, 40);
        row("left", "bottomLeft", QPoint(400, 400), "one", 16, -40);
        row("where the pointer is", "bottomLeft", QPoint(1700, 400), "two", 1600 + 16, -40);
    }

    void slidesInWithoutTheFocus()
    {
        QFETCH(QString, corner);
        QFETCH(QPoint, pointer);
        QFETCH(QString, screen);
        QFETCH(int, left);
        QFETCH(int, outward);
        Thumbnails thumbnails;
        QVERIFY(thumbnails.settings.set(SettingKeys::quickAccessCorner, corner));
        QCursor::setPos(pointer);
        const QPointer<QuickAccessPanel> panel = thumbnails.show();
        QCOMPARE(panel->restingPlace().left(), left);
        const FakeLayers::Float &placed = thumbnails.layers.floats[panel->windowHandle()];
        QCOMPARE(placed.screen->name(), screen);
        QCOMPARE(placed.keyboard, WindowLayers::Keyboard::Never);
        const QRect rest = panel->restingPlace().translated(-placed.screen->geometry().topLeft());
        QCOMPARE(placed.rects.first(), rest.translated(outward, 0));
        QTRY_COMPARE(thumbnails.layers.floats[panel->windowHandle()].rects.last(), rest);
        QTRY_COMPARE(panel->windowOpacity(), 1.0);
        QVERIFY(panel->windowFlags() & Qt::WindowDoesNotAcceptFocus);
        QVERIFY(panel->property(CaptureProperties::hides).toBool());
        QVERIFY(!panel->property(CaptureProperties::ends).toBool());
        QCOMPARE(panel->accessibleName(), "Screenshot taken");
    }

    void stayWhileTheirTimeStands_data()
    {
        QTest::addColumn<bool>("hidden");
        row("under the pointer", false);
        row("hidden for a capture", true);
    }

    /// Another one with the same lifetime, shown later, tells when the time would have been over.
    void stayWhileTheirTimeStands()
    {
        QFETCH(bool, hidden);
        Thumbnails thumbnails(200ms, 1ms);
        QSignalSpy emptied(&thumbnails.controller, &QuickAccessController::emptied);
        const QPointer<QuickAccessPanel> kept = thumbnails.show();
        hidden ? kept->hide() : enter(kept);
        const QPointer<QuickAccessPanel> other = thumbnails.show();
        QTRY_VERIFY(!other);
        QVERIFY(kept);
        QVERIFY(!thumbnails.controller.isEmpty());
        QCOMPARE(emptied.count(), 0);
        hidden ? kept->show() : leave(kept);
        QTRY_COMPARE(emptied.count(), 1);
        QVERIFY(!kept);
        QVERIFY(thumbnails.controller.isEmpty());
    }

    void buttonsAct_data()
    {
        columns<QuickAccessAction, QString, QString, bool>("action", "words", "result", "stays");
        row("Copy", QuickAccessAction::Copy, "Copy", "copied, Copied to clipboard", false);
        row("Annotate", QuickAccessAction::Annotate, "Annotate", "Untitled", false);
        row("Pin", QuickAccessAction::Pin, "Pin to Screen", "pinned", false);
        row("Copy Text", QuickAccessAction::CopyText, "Copy Text", "read", true);
        row("Close", QuickAccessAction::Close, "Close", "", false);
    }

    void buttonsAct()
    {
        QFETCH(QuickAccessAction, action);
        QFETCH(QString, words);
        QFETCH(bool, stays);
        Thumbnails thumbnails;
        const QPointer<QuickAccessPanel> panel = thumbnails.show();
        QuickAccessButton *button = panel->view().button(action);
        QCOMPARE(button->accessibleName(), words);
        enter(panel);
        QTest::mouseClick(button, Qt::LeftButton);
        QTRY_COMPARE(thumbnails.controller.isEmpty(), !stays);
        const auto happened = [&thumbnails] {
            QStringList result;
            if (thumbnails.clipboard.content)
                result += "copied";
            result += thumbnails.toasts.shown;
            if (!thumbnails.editedTitle.isEmpty())
                result += thumbnails.editedTitle;
            if (thumbnails.pins.count())
                result += "pinned";
            if (!thumbnails.recognizer.pending.isEmpty())
                result += "read";
            return result.join(", ");
        };
        QFETCH(QString, result);
        QTRY_COMPARE(happened(), result);
        QTRY_COMPARE(panel.isNull(), !stays);
    }

    void showsThePictureAtEveryScale_data()
    {
        QTest::addColumn<int>("pointer");
        row("1x", 400);
        row("2x", 1700);
        row("1.5x", 3300);
    }

    void showsThePictureAtEveryScale()
    {
        QFETCH(int, pointer);
        QCursor::setPos(pointer, 400);
        Thumbnails thumbnails;
        RasterImage image = FloatsFixture::picture({ 800, 480 }, 1, Qt::red);
        for (int y = 0; y < 480; ++y)
            std::fill_n(reinterpret_cast<QRgb *>(image.pixels.scanLine(y)) + 400, 400, 0xff0000ffu);
        const QImage seen = thumbnails.show(image)->grab().toImage();
        QCOMPARE(seen.pixelColor(seen.width() * 45 / 100, seen.height() / 2), QColor(Qt::red));
        QCOMPARE(seen.pixelColor(seen.width() * 55 / 100, seen.height() / 2), QColor(Qt::blue));
        QCOMPARE(seen.pixelColor(seen.width() * 95 / 100, seen.height() * 9 / 10), QColor(Qt::blue));
    }

    /// One that was not saved stays.
    void savesIntoTheDefaultFolder()
    {
        Thumbnails thumbnails;
        const QPointer<QuickAccessPanel> panel = thumbnails.show();
        panel->view().button(QuickAccessAction::Save)->click(); // the panel for saving is cancelled
        QTRY_COMPARE(thumbnails.panels.imageRequests.size(), 1);
        QVERIFY(!thumbnails.controller.isEmpty());
        QVERIFY(thumbnails.router.setDefaultSaveFolder(thumbnails.folder.path()));
        panel->view().button(QuickAccessAction::Save)->click();
        QTRY_VERIFY(thumbnails.controller.isEmpty());
        QCOMPARE(QDir(thumbnails.folder.path()).entryList({ "Screenshot *.png" }).size(), 1);
    }

    void savesAlthoughItGoesMeanwhile()
    {
        Thumbnails thumbnails;
        const QPointer<QuickAccessPanel> panel = thumbnails.show();
        thumbnails.panels.meanwhile = [&panel] { delete panel; };
        thumbnails.panels.image = { .path = thumbnails.folder.filePath("a.png") };
        panel->view().button(QuickAccessAction::Save)->click();
        QTRY_COMPARE(QImage(thumbnails.folder.filePath("a.png")).size(), QSize(320, 200));
        QVERIFY(thumbnails.controller.isEmpty());
    }

    void withoutARecognizerThereIsNoCopyText()
    {
        Thumbnails thumbnails;
        thumbnails.recognizer.supported = false;
        QVERIFY(!thumbnails.show()->view().button(QuickAccessAction::CopyText));
    }

    /// With large letters, around tiny and long pictures.
    void buttonsHaveRoom_data()
    {
        columns<QSize, int>("pixels", "fontSize");
        for (const int fontSize : { 9, 14 }) {
            for (const QSize size : { QSize(1, 1), QSize(3840, 2160), QSize(300, 20000), QSize(5000, 3) })
                QTest::addRow("%dx%d, %d points", size.width(), size.height(), fontSize) << size << fontSize;
        }
    }

    void buttonsHaveRoom()
    {
        QFETCH(QSize, pixels);
        QFETCH(int, fontSize);
        const QFont before = QApplication::font();
        QFont font = before;
        font.setPointSize(fontSize);
        QApplication::setFont(font);
        Thumbnails thumbnails;
        const QPointer<QuickAccessPanel> panel = thumbnails.show(FloatsFixture::picture(pixels));
        QRegion taken;
        for (const auto *button : panel->findChildren<QuickAccessButton *>()) {
            QVERIFY(panel->rect().adjusted(4, 4, -4, -4).contains(button->geometry()));
            QVERIFY(!taken.intersects(button->geometry()));
            QVERIFY(button->fontMetrics().height() <= button->height() || button->width() == button->height());
            QVERIFY(button->focusPolicy() & Qt::TabFocus);
            QVERIFY(!button->toolTip().isEmpty());
            taken += button->geometry();
        }
        QApplication::setFont(before);
    }

    void survivesItsWindow()
    {
        Thumbnails thumbnails;
        const QPointer<QuickAccessPanel> closed = thumbnails.show();
        const QPointer<QuickAccessPanel> other = thumbnails.show();
        closed->close(); // by the desktop
        QTRY_VERIFY(!closed);
        thumbnails.show();
        QCOMPARE(thumbnails.shown<QuickAccessPanel>().size(), 2);
    }
};

QTEST_MAIN(QuickAccessTest)
#include "QuickAccessTest.moc"
