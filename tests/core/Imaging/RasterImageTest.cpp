// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/RasterImage.h"
#include "tests/support/Rows.h"

#include <QColorSpace>

#include <limits>

using namespace tessaly;

class RasterImageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tellsScaleAndResolution_data()
    {
        test::columns<int, double, double, int>("pixelWidth", "pointWidth", "scale", "dpi");

        test::row("two pixels per point", 240, 120.0, 2.0, 144);
        test::row("one", 240, 240.0, 1.0, 72);
        test::row("a quarter more", 250, 200.0, 1.25, 90);
        test::row("fewer pixels than points", 100, 200.0, 1.0, 36);
        test::row("rounds", 100, 70.0, 100 / 70.0, 103);
        test::row("no point width", 240, 0.0, 1.0, 72);
        test::row("negative", 240, -5.0, 1.0, 72);
        test::row("no pixels", 0, 120.0, 1.0, 0);
        test::row("no number", 240, std::numeric_limits<double>::quiet_NaN(), 1.0, 72);
        test::row("next to nothing", 240, 1e-300, 240 / 1e-300, std::numeric_limits<int>::max());
    }

    void tellsScaleAndResolution()
    {
        QFETCH(int, pixelWidth);
        QFETCH(double, pointWidth);
        const RasterImage image { QImage(pixelWidth, 10, QImage::Format_RGB32), { pointWidth, 10 } };
        QTEST(image.pixelScale(), "scale");
        QTEST(image.dpi(), "dpi");
    }

    void keepsTwoFormats_data()
    {
        test::columns<QImage::Format, QImage::Format>("given", "kept");
        QTest::addRow("opaque") << QImage::Format_RGB888 << QImage::Format_RGB32;
        QTest::addRow("gray") << QImage::Format_Grayscale8 << QImage::Format_RGB32;
        QTest::addRow("deep") << QImage::Format_RGBX64 << QImage::Format_RGB32;
        QTest::addRow("translucent") << QImage::Format_RGBA8888 << QImage::Format_ARGB32_Premultiplied;
        QTest::addRow("deep translucent") << QImage::Format_RGBA64 << QImage::Format_ARGB32_Premultiplied;
    }

    void keepsTwoFormats()
    {
        QFETCH(QImage::Format, given);
        QImage pixels(6, 4, given);
        pixels.fill(QColor(90, 90, 90));
        pixels.setDevicePixelRatio(3);
        const RasterImage image = RasterImage::fromPixels(pixels, 2);
        QTEST(image.pixels.format(), "kept");
        QCOMPARE(image.pixels.pixelColor(5, 3), QColor(90, 90, 90));
        QCOMPARE(image.pixels.devicePixelRatio(), 1.0);
        QCOMPARE(image.pointSize, QSizeF(3, 2));
    }

    void convertsToStandardColors()
    {
        QImage pixels(1, 1, QImage::Format_RGB32);
        pixels.fill(QColor(128, 128, 128));
        pixels.setColorSpace(QColorSpace(QColorSpace::SRgbLinear));
        const QColor converted = RasterImage::fromPixels(pixels).pixels.pixelColor(0, 0);
        QVERIFY(std::abs(converted.red() - 188) <= 1); // half the light
    }

    void isEmptyWithoutPixelsOrSize()
    {
        const QImage one(1, 1, QImage::Format_RGB32);
        QVERIFY(!RasterImage({ one, { 0.5, 0.5 } }).isEmpty());
        QVERIFY(RasterImage({ {}, { 1, 1 } }).isEmpty());
        QVERIFY(RasterImage({ one, { 0, 1 } }).isEmpty());
        QVERIFY(RasterImage({ one, { 1, 0 } }).isEmpty());
    }

    void takesAnUnusableScaleForOne()
    {
        const QImage pixels(8, 4, QImage::Format_RGB32);
        for (const double scale : { 0.0, -2.0, std::numeric_limits<double>::quiet_NaN(), HUGE_VAL })
            QCOMPARE(RasterImage::fromPixels(pixels, scale).pointSize, QSizeF(8, 4));
    }
};

QTEST_GUILESS_MAIN(RasterImageTest)
#include "RasterImageTest.moc"
