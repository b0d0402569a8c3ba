// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11ScreenSource.h"

#include "platform/x11/X11Connection.h"
#include "tests/platform/x11/ServerWindow.h"
#include "tests/support/PatientTest.h"
#include "tests/support/VirtualScreen.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTest>
#include <QTimer>

using namespace tessaly;
using tessaly::test::ServerWindow;
using tessaly::test::VirtualScreen;

/// Captures a real server's screen after putting known pixels on it.
class X11ScreenSourceTest : public QObject {
    Q_OBJECT

    /// Draws `picture` on the root window at `position`, as pixels of the server.
    static bool putOnScreen(const QString &display, const QImage &picture, QPoint position)
    {
        const auto opened = X11Connection::open(display);
        if (!opened)
            return false;
        const auto &connection = **opened;
        xcb_connection_t *xcb = connection.xcb();
        const xcb_gcontext_t context = xcb_generate_id(xcb);
        xcb_create_gc(xcb, context, connection.root(), 0, nullptr);
        const uint8_t depth = xcb_setup_roots_iterator(xcb_get_setup(xcb)).data->root_depth;
        const auto drawn = xcb_put_image_checked(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, connection.root(), context,
            uint16_t(picture.width()), uint16_t(picture.height()), int16_t(position.x()), int16_t(position.y()), 0,
            depth, uint32_t(picture.sizeInBytes()), picture.constBits());
        return !XcbReply<xcb_generic_error_t>(xcb_request_check(xcb, drawn));
    }

    static Result<RasterImage> shoot(ScreenSource &source, const QRect &area, double scale)
    {
        std::optional<Result<RasterImage>> picture;
        source.capture(
            { { {}, {}, {}, scale }, area }, [&](Result<RasterImage> answer) { picture = std::move(answer); });
        return *picture;
    }

    /// Every pixel another colour; the top bytes are 0, as a server may leave them.
    static QImage distinctPixels(QSize size)
    {
        QImage picture(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                picture.setPixel(x, y, qRgb(x * 7 % 256, y * 11 % 256, (x + y * 3) % 256) & 0xffffff);
        return picture;
    }

    static QImage opaque(QImage picture)
    {
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                picture.setPixel(x, y, picture.pixel(x, y) | 0xff000000);
        return picture;
    }

    /// The pieces of shared memory in this process, by their addresses.
    static QList<QByteArray> sharedPieces()
    {
        QFile maps(QStringLiteral("/proc/self/maps"));
        QList<QByteArray> pieces;
        if (maps.open(QIODevice::ReadOnly)) {
            for (const QByteArray &line : maps.readAll().split('\n')) {
                if (line.contains("/SYSV"))
                    pieces.append(line.left(line.indexOf(' ')));
            }
        }
        return pieces;
    }

    static qsizetype openFiles() { return QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files).size(); }

    static bool addMonitor(const VirtualScreen &screen, const char *name, const char *place, const char *output)
    {
        return screen.run(QStringLiteral("xrandr"),
                   { QStringLiteral("--setmonitor"), QLatin1StringView(name), QLatin1StringView(place),
                       QLatin1StringView(output) })
            == 0;
    }

private Q_SLOTS:
    void capturesPixelsUnchanged_data()
    {
        QTest::addColumn<QRect>("area");
        QTest::addColumn<QRect>("visible");
        QTest::newRow("the whole screen") << QRect(0, 0, 201, 99) << QRect(0, 0, 201, 99);
        QTest::newRow("a part") << QRect(13, 7, 31, 17) << QRect(13, 7, 31, 17);
        QTest::newRow("over the edge") << QRect(190, 90, 50, 50) << QRect(190, 90, 11, 9);
        QTest::newRow("from before the origin") << QRect(-5, -5, 10, 10) << QRect(0, 0, 5, 5);
    }

    void capturesPixelsUnchanged()
    {
        QFETCH(QRect, area);
        QFETCH(QRect, visible);
        const VirtualScreen screen(QStringLiteral("201x99x24"));
        QVERIFY(!screen.displayName().isEmpty());
        const QImage shown = distinctPixels({ 201, 99 });
        QVERIFY(putOnScreen(screen.displayName(), shown, { 0, 0 }));

        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source);
        const auto first = shoot(**source, area, 2);
        QVERIFY(first);
        QCOMPARE(first->pointSize, QSizeF(visible.size()) / 2);
        const QImage expected = opaque(shown.copy(visible));
        QCOMPARE(first->pixels, expected);

        auto onceSource = X11ScreenSource::create(CaptureUse::Once, screen.displayName());
        QVERIFY(onceSource);
        const auto once = shoot(**onceSource, area, 2);
        QVERIFY(once);
        QCOMPARE(*once, *first);

        // A capture that is kept must not change when the screen is captured again.
        const QImage changed = distinctPixels({ 201, 99 }).mirrored(true, true);
        QVERIFY(putOnScreen(screen.displayName(), changed, { 0, 0 }));
        const auto second = shoot(**source, area, 2);
        QVERIFY(second);
        QCOMPARE(second->pixels, opaque(changed.copy(visible)));
        QCOMPARE(first->pixels, expected);
    }

    void readsAScreenOf16Bits()
    {
        const VirtualScreen screen(QStringLiteral("64x32x16"));
        QVERIFY(!screen.displayName().isEmpty());
        QImage shown(64, 32, QImage::Format_RGB16);
        shown.fill(QColor(255, 0, 0));
        QVERIFY(putOnScreen(screen.displayName(), shown, { 0, 0 }));
        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source);
        const auto picture = shoot(**source, { 0, 0, 64, 32 }, 1);
        QVERIFY(picture);
        QCOMPARE(picture->pixels.pixel(63, 31), qRgb(255, 0, 0));
    }

    void namesMonitorsAndTheirScale()
    {
        const VirtualScreen screen(QStringLiteral("800x300x24"));
        QVERIFY(!screen.displayName().isEmpty());
        QVERIFY(addMonitor(screen, "LEFT", "500/100x300/60+0+0", "screen"));
        QVERIFY(addMonitor(screen, "*RIGHT", "300/60x300/60+500+0", "none"));
        const QString resources = QStringLiteral("printf 'Xft.dpi: 144\\n' | xrdb -merge -nocpp");
        QCOMPARE(screen.run(QStringLiteral("sh"), { QStringLiteral("-c"), resources }), 0);

        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source);
        const auto displays = (*source)->displays();
        QVERIFY(displays);
        QCOMPARE(displays->size(), 2);
        QCOMPARE(displays->at(0).name, QStringLiteral("RIGHT"));
        QCOMPARE(displays->at(0).layoutRect, QRect(500, 0, 300, 300));
        QCOMPARE(displays->at(1).layoutRect, QRect(0, 0, 500, 300));
        QCOMPARE(displays->at(1).scale, 1.5);
        QVERIFY(displays->at(0).primary && !displays->at(1).primary);

        QCOMPARE(screen.run(QStringLiteral("xrandr"), { QStringLiteral("--delmonitor"), QStringLiteral("RIGHT") }), 0);
        const auto left = (*source)->displays();
        QVERIFY(left && left->size() == 1);
        QVERIFY(left->first().primary);
    }

    void readsAServerWithoutSharedMemory()
    {
        const VirtualScreen screen(
            QStringLiteral("64x32x24"), { QStringLiteral("-extension"), QStringLiteral("MIT-SHM") });
        QVERIFY(!screen.displayName().isEmpty());
        const QImage shown = distinctPixels({ 64, 32 });
        QVERIFY(putOnScreen(screen.displayName(), shown, { 0, 0 }));
        for (const CaptureUse use : { CaptureUse::Once, CaptureUse::Repeated }) {
            auto source = X11ScreenSource::create(use, screen.displayName());
            QVERIFY(source);
            (*source)->prepare();
            const auto picture = shoot(**source, { 3, 2, 60, 30 }, 1);
            QVERIFY(picture);
            QCOMPARE(picture->pixels, opaque(shown.copy(3, 2, 60, 30)));
        }
    }

    void keepsOnePieceOfMemoryForEachMonitor()
    {
        const VirtualScreen screen(QStringLiteral("800x300x24"));
        QVERIFY(addMonitor(screen, "LEFT", "500/100x300/60+0+0", "screen"));
        QVERIFY(addMonitor(screen, "RIGHT", "300/60x300/60+500+0", "none"));
        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source);
        (*source)->prepare();
        const auto prepared = sharedPieces();
        QCOMPARE(prepared.size(), 2);
        const auto displays = (*source)->displays();
        QVERIFY(displays);
        for (int round = 0; round < 3; ++round) {
            std::vector<Result<RasterImage>> alive;
            for (const auto &display : *displays)
                alive.push_back(shoot(**source, display.layoutRect, 1));
            QCOMPARE(sharedPieces(), prepared);
        }
        // A small part is kept in memory of its own.
        const auto part = shoot(**source, { 0, 0, 20, 20 }, 1);
        (*source)->release();
        QCOMPARE(sharedPieces(), QList<QByteArray>());
        QVERIFY(part && !part->pixels.isNull());
    }

    void staysTheSameOverManyCaptures()
    {
        const VirtualScreen screen(QStringLiteral("320x200x24"));
        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source);
        const auto captures = [&](int count) {
            for (int index = 0; index < count; ++index) {
                const auto whole = shoot(**source, { 0, 0, 320, 200 }, 1);
                const auto part = shoot(**source, { 10, 10, 30, 30 }, 1);
                if (!whole || !part)
                    return false;
            }
            return true;
        };
        QVERIFY(captures(20));
        const auto pieces = sharedPieces();
        const qsizetype files = openFiles();
        QVERIFY(captures(500));
        QCOMPARE(sharedPieces(), pieces);
        QCOMPARE(openFiles(), files);
    }

    void leavesOutDesktopIcons_data()
    {
        QTest::addColumn<bool>("hasBackground");
        QTest::newRow("over a background picture") << true;
        QTest::newRow("without one") << false;
    }

    /// A desktop window with another one on it, and a second one partly over both.
    void leavesOutDesktopIcons()
    {
        QFETCH(bool, hasBackground);
        const VirtualScreen screen(QStringLiteral("100x60x24"));
        ServerWindow desktop(screen.displayName(), { 0, 0, 100, 60 }, qRgb(10, 20, 30));
        desktop.setAtoms("_NET_WM_WINDOW_TYPE", { "_NET_WM_WINDOW_TYPE_DESKTOP" });
        desktop.show();
        ServerWindow other(screen.displayName(), { 20, 10, 30, 20 }, qRgb(200, 0, 0));
        other.show();
        if (hasBackground)
            desktop.setBackground(distinctPixels({ 50, 30 }));

        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source && (*source)->canLeaveOutDesktopIcons());
        std::optional<Result<RasterImage>> picture;
        (*source)->capture({ { {}, {}, {}, 1 }, { 5, 5, 90, 50 }, true },
            [&](Result<RasterImage> answer) { picture = std::move(answer); });
        QVERIFY(picture && *picture);

        QImage expected(100, 60, QImage::Format_RGB32);
        expected.fill(Qt::black);
        QPainter painter(&expected);
        if (hasBackground)
            painter.fillRect(expected.rect(), QBrush(opaque(distinctPixels({ 50, 30 }))));
        painter.fillRect(20, 10, 30, 20, QColor(200, 0, 0));
        painter.end();
        QCOMPARE((*picture)->pixels, expected.copy(5, 5, 90, 50));
    }

    void waitsForTheDrawingToEnd()
    {
        const VirtualScreen screen(QStringLiteral("100x60x24"));
        ServerWindow window(screen.displayName(), { 0, 0, 50, 50 }, qRgb(1, 2, 3));
        window.show();
        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source);
        QTimer drawing;
        drawing.callOnTimeout([&] { window.draw(); });
        drawing.start(0);
        QTimer::singleShot(200, &drawing, &QTimer::stop);
        std::optional<bool> stillDrawing;
        (*source)->whenSettled([&] { stillDrawing = drawing.isActive(); });
        QVERIFY(!stillDrawing);
        QTRY_VERIFY(stillDrawing);
        QVERIFY(!*stillDrawing);

        // A film that never pauses does not hold it up for ever.
        drawing.start(0);
        stillDrawing.reset();
        (*source)->whenSettled([&] { stillDrawing = drawing.isActive(); });
        QTRY_VERIFY(stillDrawing);
        QVERIFY(*stillDrawing);
    }

    void saysWhatIsMissing()
    {
        const auto nobody = X11ScreenSource::create(CaptureUse::Once, QStringLiteral(":64999"));
        QVERIFY(!nobody);
        QVERIFY(nobody.failure().message.contains(u":64999"));
        const VirtualScreen screen(QStringLiteral("64x32x24"));
        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source);
        QVERIFY(!shoot(**source, { 100, 100, 10, 10 }, 1));
    }
};

QTEST_GUILESS_MAIN(X11ScreenSourceTest)
#include "X11ScreenSourceTest.moc"
