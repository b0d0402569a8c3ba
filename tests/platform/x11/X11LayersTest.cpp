// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11Layers.h"

#include "platform/x11/WindowStack.h"
#include "tests/platform/x11/ServerWindow.h"
#include "tests/support/PatientTest.h"
#include "tests/support/VirtualScreen.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QRasterWindow>
#include <QTest>

#include <xcb/shape.h>

using namespace tessaly;
using tessaly::test::ServerWindow;
using tessaly::test::VirtualScreen;
using tessaly::test::WindowManager;

/// Qt's windows on a real server with two monitors of scale 1.5 and 2, whose sizes are no whole points; looked at from
/// another connection, as other programs see them.
class X11LayersTest : public QObject {
    Q_OBJECT

    class KeyWindow : public QRasterWindow {
    public:
        QString keys;

    protected:
        void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(QRect({}, size()), Qt::red); }
        void keyPressEvent(QKeyEvent *event) override { keys += event->text(); }
    };

    const VirtualScreen &m_server;
    X11Layers m_layers;
    /// Another program's window, which has the focus.
    ServerWindow m_other { m_server.displayName(), { 20, 30, 60, 40 }, qRgb(0, 0, 255), ServerWindow::Managed::Yes };

    xcb_connection_t *xcb() const { return m_other.connection().xcb(); }

    static QScreen *screenNamed(QStringView name)
    {
        for (QScreen *screen : QGuiApplication::screens()) {
            if (screen->name() == name)
                return screen;
        }
        return nullptr;
    }

    xcb_window_t focus() const
    {
        const XcbReply<xcb_get_input_focus_reply_t> reply(
            xcb_get_input_focus_reply(xcb(), xcb_get_input_focus(xcb()), nullptr));
        return reply->focus;
    }

    /// The window's rectangle on the server's screen if the server shows it.
    QRect shownRect(const QWindow &window) const
    {
        const auto id = xcb_window_t(window.winId());
        const xcb_window_t topLevel = WindowStack::topLevelsOf(m_other.connection(), { id }).first();
        for (const auto &candidate : WindowStack::visibleTopLevels(m_other.connection())) {
            if (candidate.id == topLevel)
                return candidate.pixelRegion.boundingRect();
        }
        return {};
    }

    QByteArrayList states(const QWindow &window) const
    {
        QByteArrayList names;
        for (const quint32 atom :
            PropertyRequest(xcb(), xcb_window_t(window.winId()), m_other.atom("_NET_WM_STATE")).numbers()) {
            const XcbReply<xcb_get_atom_name_reply_t> name(
                xcb_get_atom_name_reply(xcb(), xcb_get_atom_name(xcb(), atom), nullptr));
            names.append(QByteArray(xcb_get_atom_name_name(name.get()), xcb_get_atom_name_name_length(name.get())));
        }
        return names;
    }

    void type(const char *key) const
    {
        QCOMPARE(m_server.run(QStringLiteral("xdotool"), { QStringLiteral("key"), QLatin1StringView(key) }), 0);
    }

public:
    explicit X11LayersTest(const VirtualScreen &server) : m_server(server) { }

private Q_SLOTS:
    void initTestCase()
    {
        m_other.show();
        QTRY_VERIFY(PropertyRequest(xcb(), m_other.connection().root(), m_other.atom("_NET_CLIENT_LIST_STACKING"))
                        .numbers()
                        .contains(m_other.id()));
        QCOMPARE(m_server.run(QStringLiteral("xdotool"),
                     { QStringLiteral("windowfocus"), QStringLiteral("--sync"), QString::number(m_other.id()) }),
            0);
        QCOMPARE(focus(), m_other.id());
    }

    void coversAMonitorExactly_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QRect>("pixelRect");
        QTest::newRow("left") << "LEFT" << QRect(0, 0, 401, 301);
        QTest::newRow("right") << "RIGHT" << QRect(401, 0, 399, 301);
    }

    void coversAMonitorExactly()
    {
        QFETCH(QString, name);
        QFETCH(QRect, pixelRect);
        KeyWindow cover;
        QScreen *screen = screenNamed(name);
        QVERIFY(screen);
        m_layers.prepareCover(cover, *screen);
        QVERIFY(shownRect(cover).isEmpty());
        // Something that comes to the top after the cover was made.
        ServerWindow menu(m_server.displayName(), { 390, 10, 30, 30 }, qRgb(1, 1, 1));
        menu.show();
        m_layers.showCover(cover);
        QTRY_VERIFY(cover.isExposed());
        QCOMPARE(shownRect(cover), pixelRect);
        QCOMPARE(WindowStack::visibleTopLevels(m_other.connection()).last().id, xcb_window_t(cover.winId()));
        m_layers.hideCover(cover);
        QCOMPARE(shownRect(cover), QRect());
        // A second time, as kept windows are.
        m_layers.showCover(cover);
        QCOMPARE(shownRect(cover), pixelRect);
        m_layers.hideCover(cover);
    }

    void takesTheKeysAndLeavesTheFocus()
    {
        KeyWindow cover;
        KeyWindow second;
        m_layers.prepareCover(cover, *screenNamed(u"LEFT"));
        m_layers.prepareCover(second, *screenNamed(u"RIGHT"));
        m_layers.showCover(second);
        m_layers.showCover(cover);
        type("a");
        QTRY_COMPARE(cover.keys, QStringLiteral("a"));
        m_layers.hideCover(cover);
        type("b");
        QTRY_COMPARE(second.keys, QStringLiteral("b"));
        m_layers.hideCover(second);
        QCOMPARE(focus(), m_other.id());
        const auto grab = xcb_grab_keyboard(
            xcb(), 0, m_other.connection().root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        const XcbReply<xcb_grab_keyboard_reply_t> free(xcb_grab_keyboard_reply(xcb(), grab, nullptr));
        QCOMPARE(int(free->status), int(XCB_GRAB_STATUS_SUCCESS));

        // Held by another program's menu, the keyboard comes when the menu closes.
        m_layers.showCover(cover);
        type("c");
        xcb_ungrab_keyboard(xcb(), XCB_CURRENT_TIME);
        m_other.sync();
        QTRY_VERIFY((type("d"), QCoreApplication::processEvents(), cover.keys.contains(u'd')));
        QVERIFY(!cover.keys.contains(u'c'));
        m_layers.hideCover(cover);
    }

    void noticesACompositingManager()
    {
        QVERIFY(!m_layers.showsTransparency());
        KeyWindow cover;
        m_layers.prepareCover(cover, *screenNamed(u"LEFT"));
        const auto depth = [&] {
            const XcbReply<xcb_get_geometry_reply_t> reply(
                xcb_get_geometry_reply(xcb(), xcb_get_geometry(xcb(), xcb_window_t(cover.winId())), nullptr));
            return reply ? int(reply->depth) : 0;
        };
        QCOMPARE(depth(), 24);
        for (const int expected : { 32, 24 }) {
            const xcb_window_t owner = expected == 32 ? m_other.id() : xcb_window_t(XCB_WINDOW_NONE);
            xcb_set_selection_owner(xcb(), owner, m_other.atom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
            m_other.sync();
            QCOMPARE(m_layers.showsTransparency(), expected == 32);
            m_layers.showCover(cover);
            QTRY_VERIFY(cover.isExposed());
            QCOMPARE(depth(), expected);
            m_layers.hideCover(cover);
        }
    }

    void floatsAboveAll_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QRect>("pixelRect");
        QTest::newRow("left") << "LEFT" << QRect(30, 15, 90, 60);
        QTest::newRow("right") << "RIGHT" << QRect(401 + 40, 20, 120, 80);
    }

    void floatsAboveAll()
    {
        QFETCH(QString, name);
        QFETCH(QRect, pixelRect);
        QVERIFY(m_layers.canStayAbove() && m_layers.canPlace());
        for (const auto keyboard : { X11Layers::Keyboard::Never, X11Layers::Keyboard::OnClick }) {
            KeyWindow window;
            m_layers.prepareFloat(window, *screenNamed(name), QRect(20, 10, 60, 40), keyboard);
            for (int round = 0; round < 2; ++round) {
                window.show();
                QTRY_COMPARE(shownRect(window), pixelRect);
                for (const char *state :
                    { "_NET_WM_STATE_ABOVE", "_NET_WM_STATE_SKIP_TASKBAR", "_NET_WM_STATE_SKIP_PAGER" })
                    QTRY_VERIFY2(states(window).contains(state), state);
                QCOMPARE(
                    PropertyRequest(xcb(), xcb_window_t(window.winId()), m_other.atom("_NET_WM_DESKTOP")).number(0),
                    0xffffffffu);
                QCOMPARE(focus(), m_other.id());
                window.hide();
                QTRY_VERIFY(shownRect(window).isEmpty());
            }
        }
    }

    void letsClicksThrough()
    {
        KeyWindow window;
        m_layers.prepareFloat(window, *screenNamed(u"LEFT"), QRect(20, 10, 60, 40), X11Layers::Keyboard::Never);
        const auto takesClicks = [&] {
            const XcbReply<xcb_shape_get_rectangles_reply_t> shape(xcb_shape_get_rectangles_reply(
                xcb(), xcb_shape_get_rectangles(xcb(), xcb_window_t(window.winId()), XCB_SHAPE_SK_INPUT), nullptr));
            return xcb_shape_get_rectangles_rectangles_length(shape.get()) > 0;
        };
        window.show();
        QTRY_VERIFY(!shownRect(window).isEmpty());
        QVERIFY(takesClicks());
        m_layers.setPassesClicks(window, true);
        QTRY_VERIFY(!takesClicks());
        window.hide();
        window.show();
        QTRY_VERIFY(!shownRect(window).isEmpty() && !takesClicks());
        m_layers.moveFloat(window, QRect(40, 20, 60, 40));
        QTRY_COMPARE(shownRect(window), QRect(60, 30, 90, 60));
        m_layers.setPassesClicks(window, false);
        QTRY_VERIFY(takesClicks());
    }
};

int main(int argc, char **argv)
{
    const VirtualScreen server(QStringLiteral("800x301x24"));
    for (const auto &[name, place, output] : { std::tuple { "LEFT", "401/100x301/100+0+0", "screen" },
             std::tuple { "RIGHT", "399/100x301/100+401+0", "none" } }) {
        server.run(QStringLiteral("xrandr"),
            { QStringLiteral("--setmonitor"), QLatin1StringView(name), QLatin1StringView(place),
                QLatin1StringView(output) });
    }
    qputenv("DISPLAY", server.displayName().toLocal8Bit());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_SCREEN_SCALE_FACTORS", "LEFT=1.5;RIGHT=2");
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QGuiApplication application(argc, argv);
    const WindowManager manager(server.displayName());
    if (!manager.isReady())
        return EXIT_FAILURE;
    X11LayersTest test(server);
    return QTest::qExec(&test, argc, argv);
}

#include "X11LayersTest.moc"
