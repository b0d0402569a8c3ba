// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Toast/WidgetToasts.h"
#include "tests/support/FakeLayers.h"
#include "tests/support/PatientTest.h"
#include "ui/Toast/LinkToastView.h"
#include "ui/Toast/ToastView.h"

#include <QApplication>
#include <QFontDatabase>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QToolButton>

#include <cmath>

using namespace tessaly;
using namespace std::chrono_literals;

class WidgetToastsTest : public QObject {
    Q_OBJECT

    template <class View>
    static QList<View *> shown()
    {
        QList<View *> views;
        for (QWidget *window : QApplication::topLevelWidgets())
            if (auto *view = qobject_cast<View *>(window); view && view->isVisible())
                views += view;
        return views;
    }

    static QRect screen() { return QGuiApplication::primaryScreen()->geometry(); }

    static void click(QWidget *panel, const char *name)
    {
        QTest::mouseClick(panel->findChild<QWidget *>(QLatin1StringView(name)), Qt::LeftButton);
    }

private Q_SLOTS:
    void aNoticeLiesAboveTheBottomOfTheScreen()
    {
        WidgetToasts toasts;
        toasts.show("Text copied to clipboard", 1h);
        QCOMPARE(shown<ToastView>().size(), 1);
        const ToastView *view = shown<ToastView>().first();
        QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
        font.setPixelSize(13);
        font.setWeight(QFont::Medium);
        const int words = int(std::ceil(QFontMetricsF(font).horizontalAdvance(view->message())));
        QCOMPARE(view->size(), QSize(words + 40, 40));
        QCOMPARE(view->y() + view->height(), screen().bottom() + 1 - 120);
        QVERIFY(std::abs(view->geometry().center().x() - screen().center().x()) <= 1);
        QVERIFY(view->windowFlags() & Qt::WindowTransparentForInput);
        QTRY_COMPARE(view->windowOpacity(), 1.0);
        const QImage picture = shown<ToastView>().first()->grab().toImage().convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(picture.pixel(0, 0), 0u);
        QCOMPARE(qAlpha(picture.pixel(picture.width() / 2, 2)), 209); // 0.82
    }

    void aNoticeThatIsTooLongFitsTheScreen()
    {
        WidgetToasts toasts;
        toasts.show(QString(400, u'W'), 1h);
        QVERIFY(screen().contains(shown<ToastView>().first()->geometry()));
    }

    void noticesGoByThemselvesAndReplaceEachOther()
    {
        WidgetToasts toasts;
        toasts.show("first", 1ms);
        toasts.show("second", 1h);
        QCOMPARE(shown<ToastView>().size(), 1);
        QTRY_COMPARE(shown<ToastView>().first()->windowOpacity(), 1.0);
        QCOMPARE(shown<ToastView>().first()->message(), "second");
        toasts.show("third", 1ms);
        QTRY_VERIFY(shown<ToastView>().isEmpty());
    }

    void theLinkOpensAtItsButtonOnly_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<int>("opened");
        QTest::newRow("open") << QByteArray("openLink") << 1;
        QTest::newRow("close") << QByteArray("closeLink") << 0;
    }

    void theLinkOpensAtItsButtonOnly()
    {
        QFETCH(QByteArray, button);
        QFETCH(int, opened);
        WidgetToasts toasts;
        int calls = 0;
        toasts.show("Recognizing text…", 1h);
        toasts.showLink("QR code link copied", "example.org", [&calls] { ++calls; });
        QVERIFY2(shown<ToastView>().isEmpty(), "its result takes the place of the waiting notice");
        LinkToastView *link = shown<LinkToastView>().value(0);
        QVERIFY(link);
        QCOMPARE(link->findChild<QLabel *>("host")->text(), "example.org");
        const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
        QCOMPARE(link->y() + link->height(), area.bottom() + 1 - 120);
        QCOMPARE(calls, 0);
        click(link, button);
        click(link, button); // while it fades
        QCOMPARE(calls, opened);
        QTRY_VERIFY(shown<LinkToastView>().isEmpty());
        QCOMPARE(calls, opened);
    }

    void aNoticeAndALinkAreBothSeen()
    {
        WidgetToasts toasts;
        toasts.showLink("QR code link copied", "old.example", [] {});
        toasts.showLink("QR code link copied", "new.example", [] {});
        QCOMPARE(shown<LinkToastView>().size(), 1);
        QCOMPARE(shown<LinkToastView>().first()->findChild<QLabel *>("host")->text(), "new.example");
        toasts.show("Copied to clipboard", 1h);
        QVERIFY(!shown<LinkToastView>().first()->geometry().intersects(shown<ToastView>().first()->geometry()));
    }

    void windowsThatCannotPlaceThemselvesArePlaced()
    {
        test::FakeLayers layers;
        WidgetToasts toasts;
        toasts.setLayers(&layers);
        toasts.show("Copied to clipboard", 1h);
        toasts.showLink("QR code link copied", "example.org", [] {});
        QWidget *link = shown<LinkToastView>().value(0);
        QCOMPARE(layers.floats[link->windowHandle()].rects, QList { link->geometry() });
        QCOMPARE(layers.floats[link->windowHandle()].keyboard, WindowLayers::Keyboard::OnClick);
        QCOMPARE(layers.floats.size(), 2);
    }

    void aLinkGoesAfterItsTime()
    {
        int opened = 0, closed = 0;
        auto *link = new LinkToastView(
            "message", QString(300, u'h'), [&] { ++opened; }, [&] { ++closed; }, 1ms);
        QVERIFY(link->width() < 800);
        link->fadeIn();
        const QPointer<LinkToastView> kept(link);
        QTRY_VERIFY(!kept);
        QCOMPARE(opened, 0);
        QCOMPARE(closed, 1);
    }

    void keysAnswerALink()
    {
        int opened = 0, closed = 0;
        for (const Qt::Key key : { Qt::Key_Return, Qt::Key_Escape }) {
            const QPointer<LinkToastView> link(new LinkToastView(
                "m", "h", [&] { ++opened; }, [&] { ++closed; }));
            link->fadeIn();
            QTest::keyClick(link, key);
            QTRY_VERIFY(!link);
        }
        QCOMPARE(opened, 1);
        QCOMPARE(closed, 1);
    }
};

QTEST_MAIN(WidgetToastsTest)
#include "WidgetToastsTest.moc"
