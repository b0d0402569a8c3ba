// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/WaylandScreenSource.h"

#include "tests/support/SwaySession.h"
#include "tests/support/WaylandHands.h"

#include <QTest>

using namespace tessaly;
using tessaly::test::ScreenPicture;
using tessaly::test::SwaySession;

/// Captures a real compositor's screen after putting known pixels on it.
class WaylandScreenSourceTest : public QObject {
    Q_OBJECT
    using Display = tessaly::Display; // Qt names Xlib's too

    static QString monitorName(qsizetype index) { return QStringLiteral("HEADLESS-%1").arg(index + 1); }

    /// Neighbours differ, as in a chequerboard, and no two places look alike.
    static QImage distinctPixels(QSize size)
    {
        QImage picture(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                picture.setPixel(x, y, qRgb(x % 256, y % 256, (x + y) % 2 ? 255 : x / 256 * 16 + y / 256));
        return picture;
    }

    static std::optional<RasterImage> shoot(ScreenSource &source, const Display &display, const QRect &area)
    {
        std::optional<RasterImage> picture;
        source.capture({ display, area }, [&](Result<RasterImage> answer) {
            if (answer)
                picture = *answer;
            else
                qWarning().noquote() << answer.failure().message;
        });
        return picture;
    }

private Q_SLOTS:
    void tellsMonitors()
    {
        const SwaySession session({ { { 1280, 720 }, 1.5, { 0, 0 } }, { { 800, 600 }, 1, { -800, 10 } },
            { { 800, 600 }, 2, { 853, 0 }, QStringLiteral("90") } });
        QVERIFY(session.isReady());
        auto source = WaylandScreenSource::create(CaptureUse::Once);
        QVERIFY(source);
        const auto displays = (*source)->displays();
        QVERIFY(displays);
        const QList<Display> expected { { monitorName(0), { 0, 0, 853, 480 }, { 1280, 720 }, 1.5, true },
            { monitorName(1), { -800, 10, 800, 600 }, { 800, 600 }, 1, false },
            { monitorName(2), { 853, 0, 300, 400 }, { 600, 800 }, 2, false } };
        QCOMPARE(*displays, expected);
    }

    void capturesPixelsUnchanged_data()
    {
        QTest::addColumn<double>("scale");
        QTest::addColumn<QString>("transform");
        QTest::newRow("one pixel a point") << 1.0 << "normal";
        QTest::newRow("one and a half") << 1.5 << "normal";
        QTest::newRow("two pixels a point") << 2.0 << "normal";
        QTest::newRow("turned by 90") << 1.0 << "90";
        QTest::newRow("upside down") << 2.0 << "180";
        QTest::newRow("mirrored") << 1.0 << "flipped";
        QTest::newRow("mirrored and turned") << 1.0 << "flipped-90";
        QTest::newRow("mirrored and turned by 270") << 1.0 << "flipped-270";
    }

    void capturesPixelsUnchanged()
    {
        QFETCH(double, scale);
        QFETCH(QString, transform);
        const SwaySession session({ { { 642, 380 }, scale, { 0, 0 }, transform } });
        QVERIFY(session.isReady());
        auto source = WaylandScreenSource::create(CaptureUse::Once);
        QVERIFY(source);
        const Display display = (*source)->displays()->first();
        const QImage shown = distinctPixels(display.pixelSize);
        const ScreenPicture picture(display.name, shown);
        QVERIFY(picture.isShown());

        // The whole, a large part and a small one, with edges that lie between two points.
        for (const QRect &area :
            { display.pixelRect(), display.pixelRect().adjusted(3, 5, -7, -9), QRect(101, 33, 51, 7) }) {
            const auto captured = shoot(**source, display, area);
            QVERIFY(captured);
            QCOMPARE(captured->pixels.format(), QImage::Format_RGB32);
            QCOMPARE(captured->pixels, shown.copy(area));
            QCOMPARE(captured->pixels.pixel(0, 0) >> 24, 255u);
            QCOMPARE(captured->pointSize, QSizeF(area.size()) / scale);
        }
    }

    void keepsPicturesApart()
    {
        const SwaySession session({ { { 320, 200 }, 1, { 0, 0 } } });
        QVERIFY(session.isReady());
        auto source = WaylandScreenSource::create(CaptureUse::Repeated);
        QVERIFY(source);
        const Display display = (*source)->displays()->first();
        const QImage before = distinctPixels({ 320, 200 });
        const QImage after = before.mirrored();
        auto picture = std::make_unique<ScreenPicture>(display.name, before);
        const auto first = shoot(**source, display, display.pixelRect());
        picture = std::make_unique<ScreenPicture>(display.name, after);
        const auto second = shoot(**source, display, display.pixelRect());
        (*source)->release();
        source->reset();
        QCOMPARE(first->pixels, before);
        QCOMPARE(second->pixels, after);
    }

    void followsMonitorsAndTheCompositor()
    {
        auto session = std::make_unique<SwaySession>(QList<SwaySession::Monitor> { { { 320, 200 }, 1, { 0, 0 } } });
        QVERIFY(session->isReady());
        auto source = WaylandScreenSource::create(CaptureUse::Repeated);
        QVERIFY(source);
        QCOMPARE((*source)->displays()->size(), 1);
        QVERIFY(SwaySession::command(QStringLiteral("create_output")));
        const auto two = (*source)->displays();
        QVERIFY(two);
        QCOMPARE(two->size(), 2);
        QVERIFY(shoot(**source, two->last(), { 0, 0, 10, 10 }));
        Display gone = two->last();
        gone.name = QStringLiteral("HEADLESS-9");
        QTest::ignoreMessage(QtWarningMsg, "The display HEADLESS-9 is not connected.");
        QVERIFY(!shoot(**source, gone, { 0, 0, 10, 10 }));

        session->end();
        QVERIFY(!(*source)->displays());
        session.reset();
        session = std::make_unique<SwaySession>(QList<SwaySession::Monitor> { { { 400, 300 }, 1, { 0, 0 } } });
        QVERIFY(session->isReady());
        const auto again = (*source)->displays();
        QVERIFY(again);
        QCOMPARE(again->first().pixelSize, QSize(400, 300));
    }

    void failsWithoutACompositor()
    {
        qputenv("WAYLAND_DISPLAY", "/nowhere/wayland-0");
        const auto source = WaylandScreenSource::create(CaptureUse::Once);
        QVERIFY(!source);
        QVERIFY(!source.failure().message.isEmpty());
    }
};

QTEST_GUILESS_MAIN(WaylandScreenSourceTest)
#include "WaylandScreenSourceTest.moc"
