// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Screen/CaptureEngine.h"
#include "tests/support/FakeScreen.h"
#include "tests/support/Rows.h"
#include "tests/support/SamplePictures.h"

using namespace tessaly;

Q_DECLARE_METATYPE(std::optional<quint32>)

/// Monitors, windows and parts of them as finished pictures.
class CaptureEngineTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void findsTheDisplay()
    {
        const QList<tessaly::Display> displays { { QStringLiteral("a"), {}, { 1, 1 }, 1, false },
            { QStringLiteral("b"), {}, { 1, 1 }, 1, true } };
        QCOMPARE(CaptureEngine::display(displays, {})->name, QStringLiteral("b"));
        QCOMPARE(CaptureEngine::display(displays, displays[0].id())->name, QStringLiteral("a"));
        QVERIFY(!CaptureEngine::display(displays, 5));
        QCOMPARE(CaptureEngine::display({ displays[0] }, {})->name, QStringLiteral("a"));
        QVERIFY(!CaptureEngine::display({}, {}));
        QCOMPARE(displays[0].id(), 0xe40c292cu); // known value of the hash: it is stored
    }

    void areasOfTheDesktopBecomePixels_data()
    {
        test::columns<tessaly::Display, QRectF, QRect>("display", "layout", "pixels");
        const tessaly::Display sharp { QStringLiteral("s"), { -100, 50, 100, 80 }, { 150, 120 }, 1.5, false };
        test::row("whole", sharp, QRectF(-100, 50, 100, 80), QRect(0, 0, 150, 120));
        test::row("inside", sharp, QRectF(-90, 60, 20, 10), QRect(15, 15, 30, 15));
        test::row("over the edge", sharp, QRectF(-110, 120, 20, 30), QRect(0, 105, 15, 15));
        test::row("beside", sharp, QRectF(0, 60, 20, 10), QRect());
    }

    void areasOfTheDesktopBecomePixels()
    {
        QFETCH(tessaly::Display, display);
        QFETCH(QRectF, layout);
        QFETCH(QRect, pixels);
        const QRect found = display.pixelsOf(layout);
        QVERIFY(pixels.isEmpty() ? found.isEmpty() : found == pixels);
        if (!pixels.isEmpty() && display.layoutRect.contains(layout.toRect()))
            QCOMPARE(display.layoutPoint(pixels.topLeft()), layout.topLeft());
    }

    void alignsToPixels_data()
    {
        test::columns<QRectF, double, QRectF, QRect>("rect", "scale", "aligned", "pixels");
        test::row("whole points", QRectF(0.4, 0.6, 1, 1), 1.0, QRectF(0, 1, 1, 1), QRect(0, 1, 1, 1));
        test::row("half points", QRectF(0.4, 0.6, 1, 1), 2.0, QRectF(0.5, 0.5, 1, 1), QRect(1, 1, 2, 2));
        test::row("no scale", QRectF(0.4, 0.6, 1, 1), 0.0, QRectF(0, 1, 1, 1), QRect(0, 1, 1, 1));
        test::row("thirds", QRectF(1 / 1.5, 2 / 1.5, 5 / 1.5, 7 / 1.5), 1.5, QRectF(1 / 1.5, 2 / 1.5, 5 / 1.5, 7 / 1.5),
            QRect(1, 2, 5, 7));
    }

    void alignsToPixels()
    {
        QFETCH(QRectF, rect);
        QFETCH(double, scale);
        QTEST(CaptureEngine::pixelAligned(rect, scale), "aligned");
        QTEST(CaptureEngine::pixelsOf(rect, scale), "pixels");
    }

    void cropsDetachedParts()
    {
        const QImage screen = test::samplePicture({ 30, 20 }, test::Transparency::None);
        for (const QRect rect : { QRect(0, 0, 30, 20), QRect(3, 4, 7, 5), QRect(25, 15, 50, 50) }) {
            const auto part = CaptureEngine::crop(screen, rect, 2);
            QVERIFY(part);
            QCOMPARE(part->pixels, screen.copy(rect & screen.rect()));
            QCOMPARE(part->pointSize, QSizeF((rect & screen.rect()).size()) / 2);
            QVERIFY(part->pixels.constBits() != screen.constBits());
        }
        for (const QRect rect : { QRect(30, 0, 5, 5), QRect(3, 3, 0, 5), QRect() })
            QCOMPARE(CaptureEngine::crop(screen, rect, 2).failure(), CaptureEngine::cropFailed());
    }

    void shadowsLieBelowWhatIsOpaque_data()
    {
        test::columns<bool, double>("opaque", "scale");
        test::row("window with corners", false, 1.0);
        test::row("rectangle", true, 1.0);
        test::row("sharp screen", false, 2.0);
    }

    void shadowsLieBelowWhatIsOpaque()
    {
        QFETCH(bool, opaque);
        QFETCH(double, scale);
        const int side = int(300 * scale), margin = int(64 * scale);
        QImage window({ side, side }, opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
        window.fill(Qt::red);
        if (!opaque)
            for (int y = 0; y < side / 2; ++y)
                std::fill_n(reinterpret_cast<QRgb *>(window.scanLine(y)), side, 0); // its upper half is not there
        const RasterImage image = RasterImage::fromPixels(window, scale);
        const RasterImage shaded = CaptureEngine::withShadow(image);
        QCOMPARE(shaded.pixelSize(), QSize(side + 2 * margin, side + 2 * margin));
        QCOMPARE(shaded.pointSize, QSizeF(428, 428));
        const int middle = margin + side / 2, end = margin + side;
        QCOMPARE(shaded.pixels.pixel(middle, end - 1), qRgb(255, 0, 0));
        const auto dark = [&](double right, double below) { // points from the window's lower middle
            const QRgb pixel = shaded.pixels.pixel(middle + int(right * scale), end + int(below * scale));
            return qRed(pixel) + qGreen(pixel) + qBlue(pixel) == 0 ? qAlpha(pixel) : -1;
        };
        QVERIFY2(std::abs(dark(0, 18) - 42) <= 2, "half of 0.33 where the shadow's own edge is");
        QVERIFY2(std::abs(dark(0, 38) - 13) <= 2, "a deviation beyond it, 16 % of 0.33");
        QVERIFY(dark(0, 62) <= 2 && dark(-213, 0) <= 1);
        const int above = dark(0, -320); // 20 points above the whole window
        QVERIFY(opaque ? above >= 1 && above <= 4 : above == 0);
    }

    void emptyPicturesHaveNoShadow() { QVERIFY(CaptureEngine::withShadow({}).isEmpty()); }

    void snapshotsAreOfThoseThatAnswer()
    {
        test::FakeScreen screen;
        screen.add(QStringLiteral("a"), { 0, 0, 4, 4 }, 1, test::samplePicture({ 4, 4 }, test::Transparency::None));
        screen.add(QStringLiteral("b"), { 4, 0, 4, 4 }, 1, {}); // gives nothing
        screen.add(QStringLiteral("c"), { 8, 0, 6, 4 }, 1, test::samplePicture({ 6, 4 }, test::Transparency::None));
        screen.defers = true;
        std::optional<Result<DisplaySnapshots>> answer;
        const auto take = [&](bool leavesOut) {
            answer.reset();
            CaptureEngine::snapshotDisplays(
                screen, screen.monitors, leavesOut, [&answer](auto pictures) { answer = std::move(pictures); });
        };
        take(true);
        while (!screen.waiting.isEmpty()) {
            QVERIFY(!answer);
            screen.waiting.takeFirst()();
        }
        QCOMPARE((*answer)->size(), 2);
        QCOMPARE((*answer)->value(screen.monitors[2].id()).size(), QSize(6, 4));
        QVERIFY(screen.shots.first().leavesOutDesktopIcons);
        screen.defers = false;
        screen.failure = Failure { QStringLiteral("No."), true };
        screen.shots.clear();
        take(false);
        QCOMPARE(answer->failure(), *screen.failure);
        QCOMPARE(screen.shots.size(), 1); // the user said no once
        screen.monitors.clear();
        take(false);
        QCOMPARE(answer->failure(), CaptureEngine::noDisplay());
    }

    void theFrontmostWindowIsPicked()
    {
        test::FakeWindows source;
        source.list = { { .id = 1, .layoutRect = { 10, 10, 20, 20 } }, { .id = 2, .layoutRect = { 0, 0, 100, 100 } } };
        WindowPicker picker(source);
        QVERIFY(!picker.windowAt({ 15, 15 }));
        QVERIFY(picker.prepare());
        QCOMPARE(source.prepared, 0); // nobody picks yet
        QCOMPARE(picker.windowAt({ 10, 10 })->id, 1u);
        QCOMPARE(picker.windowAt({ 30, 15 })->id, 2u); // just beside the first
        QVERIFY(!picker.windowAt({ 100, 50 }));
        QCOMPARE(source.prepared, 1);
        picker.release();
        picker.release();
        QCOMPARE(source.released, 1);
        QVERIFY(picker.windows().isEmpty());
    }
};

QTEST_GUILESS_MAIN(CaptureEngineTest)
#include "CaptureEngineTest.moc"
