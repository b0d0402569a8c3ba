// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11ScreenSource.h"

#include "platform/x11/X11Connection.h"
#include "tests/support/VirtualScreen.h"

#include <QTest>

using namespace tessaly;
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
        const auto first = (*source)->capture(area, 2);
        QVERIFY(first);
        QCOMPARE(first->pointSize, QSizeF(visible.size()) / 2);
        const QImage expected = opaque(shown.copy(visible));
        QCOMPARE(first->pixels, expected);

        auto onceSource = X11ScreenSource::create(CaptureUse::Once, screen.displayName());
        QVERIFY(onceSource);
        const auto once = (*onceSource)->capture(area, 2);
        QVERIFY(once);
        QCOMPARE(*once, *first);

        // A capture that is kept must not change when the screen is captured again.
        const QImage changed = distinctPixels({ 201, 99 }).mirrored(true, true);
        QVERIFY(putOnScreen(screen.displayName(), changed, { 0, 0 }));
        const auto second = (*source)->capture(area, 2);
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
        const auto picture = (*source)->capture({ 0, 0, 64, 32 }, 1);
        QVERIFY(picture);
        QCOMPARE(picture->pixels.pixel(63, 31), qRgb(255, 0, 0));
    }

    void namesMonitorsAndTheirScale()
    {
        const VirtualScreen screen(QStringLiteral("800x300x24"));
        QVERIFY(!screen.displayName().isEmpty());
        const auto monitor = [&](const char *name, const char *place, const char *output) {
            return screen.run(QStringLiteral("xrandr"),
                { QStringLiteral("--setmonitor"), QLatin1StringView(name), QLatin1StringView(place),
                    QLatin1StringView(output) });
        };
        QCOMPARE(monitor("LEFT", "500/100x300/60+0+0", "screen"), 0);
        QCOMPARE(monitor("*RIGHT", "300/60x300/60+500+0", "none"), 0);
        const QString resources = QStringLiteral("printf 'Xft.dpi: 144\\n' | xrdb -merge -nocpp");
        QCOMPARE(screen.run(QStringLiteral("sh"), { QStringLiteral("-c"), resources }), 0);

        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source);
        const auto displays = (*source)->displays();
        QVERIFY(displays);
        QCOMPARE(displays->size(), 2);
        QCOMPARE(displays->at(0).name, QStringLiteral("RIGHT"));
        QCOMPARE(displays->at(0).pixelRect, QRect(500, 0, 300, 300));
        QCOMPARE(displays->at(1).pixelRect, QRect(0, 0, 500, 300));
        QCOMPARE(displays->at(1).scale, 1.5);
    }

    void saysWhatIsMissing()
    {
        const auto nobody = X11ScreenSource::create(CaptureUse::Once, QStringLiteral(":64999"));
        QVERIFY(!nobody);
        QVERIFY(nobody.failure().message.contains(u":64999"));
        const VirtualScreen screen(QStringLiteral("64x32x24"));
        auto source = X11ScreenSource::create(CaptureUse::Repeated, screen.displayName());
        QVERIFY(source);
        QVERIFY(!(*source)->capture({ 100, 100, 10, 10 }, 1));
    }
};

QTEST_GUILESS_MAIN(X11ScreenSourceTest)
#include "X11ScreenSourceTest.moc"
