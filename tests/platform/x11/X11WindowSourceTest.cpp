// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11WindowSource.h"

#include "platform/x11/X11ScreenSource.h"
#include "tests/platform/x11/ServerWindow.h"
#include "tests/support/PatientTest.h"
#include "tests/support/Rows.h"
#include "tests/support/VirtualScreen.h"

using namespace tessaly;
using tessaly::test::ServerWindow;
using tessaly::test::VirtualScreen;
using tessaly::test::WindowManager;
using Managed = ServerWindow::Managed;

/// Windows of known colours on a real server, where the test says what a window manager would say.
class X11WindowSourceTest : public QObject {
    Q_OBJECT

    struct Sources {
        explicit Sources(const QString &display) :
            screen(std::move(*X11ScreenSource::create(CaptureUse::Repeated, display))),
            windows(std::move(*X11WindowSource::create(*screen, display)))
        {
        }

        /// The picture, or the failure's sentence; waits for it.
        std::optional<Result<RasterImage>> shoot(const ServerWindow &window, bool transparent = true)
        {
            std::optional<Result<RasterImage>> picture;
            windows->capture({ window.id(), QStringLiteral("Letter"), {}, 0, {} }, { transparent },
                [&](Result<RasterImage> answer) { picture = std::move(answer); });
            (void)QTest::qWaitFor([&] { return picture.has_value(); });
            return picture;
        }

        std::unique_ptr<ScreenSource> screen;
        std::unique_ptr<WindowSource> windows;
    };

    static QImage filled(QSize size, QRgb color)
    {
        QImage picture(size, qAlpha(color) == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
        picture.fill(color);
        return picture;
    }

private Q_SLOTS:
    void listsUsualWindows_data()
    {
        test::columns<QByteArray, QByteArrayList, QList<quint32>, QRect>("property", "atoms", "numbers", "listedAs");
        const QRect place(10, 10, 40, 30);
        const QRect absent;
        const auto type = [](const char *name, const QByteArrayList &types, const QRect &rect) {
            QTest::newRow(name) << QByteArray("_NET_WM_WINDOW_TYPE") << types << QList<quint32>() << rect;
        };
        const auto numbers
            = [](const char *name, const char *property, const QList<quint32> &values, const QRect &rect) {
                  QTest::newRow(name) << QByteArray(property) << QByteArrayList() << values << rect;
              };
        type("no type", {}, place);
        type("dialog", { "_NET_WM_WINDOW_TYPE_DIALOG" }, place);
        type("a desktop's own type first", { "_KDE_NET_WM_WINDOW_TYPE_OVERRIDE", "_NET_WM_WINDOW_TYPE_NORMAL" }, place);
        type("panel", { "_NET_WM_WINDOW_TYPE_DOCK" }, absent);
        type("desktop", { "_NET_WM_WINDOW_TYPE_DESKTOP" }, absent);
        type("notice", { "_NET_WM_WINDOW_TYPE_NOTIFICATION" }, absent);
        test::row("minimised", QByteArray("_NET_WM_STATE"), QByteArrayList { "_NET_WM_STATE_HIDDEN" }, QList<quint32>(),
            absent);
        numbers("on this workspace", "_NET_WM_DESKTOP", { 0 }, place);
        numbers("on another workspace", "_NET_WM_DESKTOP", { 1 }, absent);
        numbers("on all workspaces", "_NET_WM_DESKTOP", { 0xffffffff }, place);
        numbers("of this process", "_NET_WM_PID", { quint32(QCoreApplication::applicationPid()) }, absent);
        numbers("with a frame", "_NET_FRAME_EXTENTS", { 1, 2, 20, 5 }, QRect(9, -10, 43, 55));
        numbers("with a shadow of its own", "_GTK_FRAME_EXTENTS", { 6, 5, 4, 3 }, QRect(16, 14, 29, 23));
        numbers("with an absurd frame", "_NET_FRAME_EXTENTS", { 1, 2, 0xfffffff0, 5 }, place);
    }

    void listsUsualWindows()
    {
        const VirtualScreen screen(QStringLiteral("200x100x24"));
        ServerWindow window(screen.displayName(), { 10, 10, 40, 30 }, qRgb(1, 2, 3), Managed::Yes);
        window.show();
        window.setRootNumbers("_NET_CURRENT_DESKTOP", XCB_ATOM_CARDINAL, { 0 });
        QFETCH(QByteArray, property);
        QFETCH(QByteArrayList, atoms);
        QFETCH(QList<quint32>, numbers);
        if (numbers.isEmpty())
            window.setAtoms(property.constData(), atoms);
        else
            window.setNumbers(property.constData(), XCB_ATOM_CARDINAL, numbers);
        Sources sources(screen.displayName());
        const auto windows = sources.windows->windows();
        QVERIFY(windows);
        QTEST(windows->isEmpty() ? QRect() : windows->first().layoutRect.toRect(), "listedAs");
    }

    void tellsOrderAndNames()
    {
        const VirtualScreen screen(QStringLiteral("200x100x24"));
        ServerWindow low(screen.displayName(), { 0, 0, 40, 30 }, qRgb(1, 2, 3), Managed::Yes);
        ServerWindow thin(screen.displayName(), { 0, 0, 1, 30 }, qRgb(1, 2, 3), Managed::Yes);
        ServerWindow hidden(screen.displayName(), { 0, 0, 40, 30 }, qRgb(1, 2, 3), Managed::Yes);
        ServerWindow high(screen.displayName(), { 5, 5, 40, 30 }, qRgb(1, 2, 3), Managed::Yes);
        low.setText("WM_NAME", "old title");
        high.setText("WM_NAME", "old title");
        high.setText("_NET_WM_NAME", "Größe");
        high.setText("WM_CLASS", QByteArray("tool\0Tool-of-no-entry\0", 22));
        high.setNumbers("_NET_WM_PID", XCB_ATOM_CARDINAL, { 4711 });
        for (ServerWindow *window : { &low, &thin, &high })
            window->show();
        constexpr quint32 gone = 0x7fffff;
        low.setRootNumbers(
            "_NET_CLIENT_LIST_STACKING", XCB_ATOM_WINDOW, { low.id(), gone, thin.id(), hidden.id(), high.id() });
        low.setRootNumbers("_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, { high.id() });

        Sources sources(screen.displayName());
        const auto windows = sources.windows->windows();
        QVERIFY(windows);
        const QList<ScreenWindow> expected {
            { high.id(), QStringLiteral("Größe"), QStringLiteral("Tool-of-no-entry"), 4711, QRectF(5, 5, 40, 30) },
            { low.id(), QStringLiteral("old title"), {}, 0, QRectF(0, 0, 40, 30) },
        };
        QCOMPARE(*windows, expected);
        const auto front = sources.windows->frontApplication();
        QVERIFY(front);
        QCOMPARE(front->name, QStringLiteral("Tool-of-no-entry"));
        QCOMPARE(front->processId, 4711);
        low.setRootNumbers("_NET_ACTIVE_WINDOW", XCB_ATOM_WINDOW, { 0 });
        QVERIFY(!sources.windows->frontApplication());
    }

    void capturesAWindowAlone_data()
    {
        test::columns<int, QRgb, QPoint, bool, bool, bool, QRgb>(
            "depth", "color", "position", "covered", "prepared", "transparent", "expected");
        const QRgb solid = qRgb(200, 100, 50);
        const QRgb half = qRgba(100, 50, 0, 128);
        const QPoint inside(20, 10);
        test::row("uncovered", 24, solid, inside, false, false, true, solid);
        test::row("covered", 24, solid, inside, true, false, true, solid);
        test::row("covered and kept", 24, solid, inside, true, true, true, solid);
        test::row("partly off the screen", 24, solid, QPoint(180, -10), false, false, true, solid);
        test::row("half transparent", 32, half, inside, true, false, true, half);
        test::row("made opaque", 32, half, inside, false, false, false, qRgb(100, 50, 0));
        test::row(
            "more colour than alpha", 32, qRgba(200, 0, 0, 0x40), inside, false, false, true, qRgba(0x40, 0, 0, 0x40));
    }

    void capturesAWindowAlone()
    {
        QFETCH(int, depth);
        QFETCH(QRgb, color);
        QFETCH(QPoint, position);
        QFETCH(bool, covered);
        QFETCH(bool, prepared);
        QFETCH(bool, transparent);
        QFETCH(QRgb, expected);
        const VirtualScreen screen(QStringLiteral("200x100x24"));
        ServerWindow window(screen.displayName(), QRect(position, QSize(60, 40)), color, Managed::Yes, uint8_t(depth));
        // The outer pixels are its own shadow.
        window.setNumbers("_GTK_FRAME_EXTENTS", XCB_ATOM_CARDINAL, { 4, 3, 2, 1 });
        window.show();
        ServerWindow cover(screen.displayName(), { 30, 20, 100, 60 }, qRgb(0, 0, 255));
        if (covered)
            cover.show();
        Sources sources(screen.displayName());
        if (prepared)
            sources.windows->prepare({ { window.id(), {}, {}, 0, {} } });
        for (int round = 0; round < 2; ++round) {
            const auto picture = sources.shoot(window, transparent);
            QVERIFY(picture && *picture);
            QCOMPARE((*picture)->pixels, filled({ 53, 37 }, expected));
            QCOMPARE((*picture)->pointSize, QSizeF(53, 37));
        }
        sources.windows->release();
    }

    void takesWhatIsVisibleWithoutTheExtension()
    {
        const VirtualScreen screen(
            QStringLiteral("200x100x24"), { QStringLiteral("-extension"), QStringLiteral("Composite") });
        ServerWindow window(screen.displayName(), { 180, 10, 60, 40 }, qRgb(9, 8, 7), Managed::Yes);
        window.show();
        Sources sources(screen.displayName());
        sources.windows->prepare({ { window.id(), {}, {}, 0, {} } });
        const auto picture = sources.shoot(window);
        QVERIFY(picture && *picture);
        QCOMPARE((*picture)->pixels, filled({ 20, 40 }, qRgb(9, 8, 7)));
    }

    void saysThatAWindowIsGone()
    {
        const VirtualScreen screen(QStringLiteral("200x100x24"));
        Sources sources(screen.displayName());
        std::optional<Result<RasterImage>> picture;
        {
            ServerWindow window(screen.displayName(), { 0, 0, 60, 40 }, qRgb(9, 8, 7), Managed::Yes);
            window.show();
            sources.windows->prepare({ { window.id(), {}, {}, 0, {} } });
            QVERIFY(sources.windows->showsAny({ 0x7fffff, window.id() }));
            window.hide();
            QVERIFY(!sources.windows->showsAny({ window.id() }));
            picture = sources.shoot(window);
            QVERIFY(picture && !*picture);
            xcb_destroy_window(window.connection().xcb(), window.id());
            window.sync();
            picture = sources.shoot(window);
        }
        QVERIFY(picture && !*picture);
        QVERIFY(picture->failure().message.contains(QStringLiteral("“Letter”")));
        sources.windows->release();
        QVERIFY(!sources.windows->showsAny({}));
    }

    void capturesTheFrameOfAWindowManager()
    {
        const VirtualScreen screen(QStringLiteral("300x200x24"));
        const WindowManager manager(screen.displayName());
        QVERIFY(manager.isReady());
        ServerWindow window(screen.displayName(), { 50, 60, 120, 80 }, qRgb(200, 100, 50), Managed::Yes);
        window.show();
        Sources sources(screen.displayName());
        ScreenWindow listed;
        const auto hasFrame = [&] {
            const auto windows = sources.windows->windows();
            for (const ScreenWindow &found : windows ? *windows : QList<ScreenWindow>())
                listed = found.id == window.id() ? found : listed;
            return listed.layoutRect.width() >= 120 && listed.layoutRect.height() > 80;
        };
        QTRY_VERIFY(hasFrame());
        const QRect frame = listed.layoutRect.toRect();
        ServerWindow cover(screen.displayName(), { 0, 0, 300, 200 }, qRgb(0, 0, 255));
        sources.windows->prepare({ listed });
        cover.show();
        const auto picture = sources.shoot(window);
        QVERIFY(picture && *picture);
        QCOMPARE((*picture)->pixelSize(), frame.size());
        const QImage &pixels = (*picture)->pixels;
        int own = 0;
        int covers = 0;
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x) {
                own += pixels.pixel(x, y) == qRgb(200, 100, 50) ? 1 : 0;
                covers += pixels.pixel(x, y) == qRgb(0, 0, 255) ? 1 : 0;
            }
        }
        QCOMPARE(own, 120 * 80);
        QCOMPARE(covers, 0);
    }
};

QTEST_GUILESS_MAIN(X11WindowSourceTest)
#include "X11WindowSourceTest.moc"
