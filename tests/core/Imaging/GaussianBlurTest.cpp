// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/GaussianBlur.h"
#include "core/Imaging/ImageEffects.h"
#include "tests/support/NoisePicture.h"
#include "tests/support/SlowBlur.h"

#include <QTest>

using namespace tessaly;
using GaussianBlur::Outside;
using GaussianBlur::Precision;
using test::noisePicture;

class GaussianBlurTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void comesCloseToTheGaussian_data()
    {
        QTest::addColumn<double>("radius");
        QTest::addColumn<int>("tolerance");
        QTest::newRow("less than a pixel") << 0.7 << 8;
        QTest::newRow("two pixels") << 2.0 << 4;
        QTest::newRow("blocks of two") << 4.0 << 4;
        QTest::newRow("blocks of four") << 6.0 << 4;
        QTest::newRow("blocks of eight") << 13.0 << 4;
        QTest::newRow("blocks of sixteen") << 40.0 << 4;
        QTest::newRow("beyond the picture") << 300.0 << 4;
    }

    void comesCloseToTheGaussian()
    {
        QFETCH(double, radius);
        QFETCH(int, tolerance);
        // The hardest there is: black and white meet along lines, at a corner and at the picture's edge.
        QImage image(101, 67, QImage::Format_RGB32);
        image.fill(Qt::black);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if ((x > 50) != (y > 20) || x < 3)
                    image.setPixel(x, y, qRgb(255, 128, x));
            }
        }
        const QImage blurred = ImageEffects::gaussianBlur(image, radius);
        const int error = test::largestDifference(blurred, test::slowBlur(image, radius, true));
        QVERIFY2(error <= tolerance, qPrintable(QString::number(error)));
    }

    void keepsOneColor_data()
    {
        QTest::addColumn<double>("radius");
        for (const double radius : { 0.3, 1.0, 5.9, 6.0, 12.0, 25.0, 125.0, 1e9 })
            QTest::addRow("%g", radius) << radius;
    }

    void keepsOneColor()
    {
        QFETCH(double, radius);
        for (const QRgb color : { qRgba(255, 255, 255, 255), qRgba(1, 2, 3, 200), qRgba(0, 0, 0, 0) }) {
            QImage image(77, 31, QImage::Format_ARGB32_Premultiplied);
            image.fill(color);
            QCOMPARE(ImageEffects::gaussianBlur(image, radius), image);
        }
    }

    void changesNothingWithoutARadius()
    {
        const QImage image = noisePicture({ 20, 20 }, QImage::Format_RGB32);
        for (const double radius : { 0.0, -3.0, double(NAN) })
            QCOMPARE(ImageEffects::gaussianBlur(image, radius), image);
        QVERIFY(ImageEffects::gaussianBlur({}, 5).isNull());
    }

    void staysPremultiplied()
    {
        const QImage image = noisePicture({ 90, 60 }, QImage::Format_ARGB32_Premultiplied);
        for (const double radius : { 1.0, 7.0, 30.0 }) {
            const QImage blurred = ImageEffects::gaussianBlur(image, radius);
            QCOMPARE(blurred.format(), image.format());
            for (int y = 0; y < blurred.height(); ++y) {
                for (int x = 0; x < blurred.width(); ++x) {
                    const QRgb pixel = reinterpret_cast<const QRgb *>(blurred.constScanLine(y))[x];
                    QVERIFY(std::max({ qRed(pixel), qGreen(pixel), qBlue(pixel) }) <= qAlpha(pixel));
                }
            }
        }
    }

    void isTheSameForAnyThreads_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<double>("radius");
        QTest::newRow("fine") << QSize(131, 77) << 2.0;
        QTest::newRow("blocks") << QSize(131, 77) << 20.0;
        QTest::newRow("longer than a strip at a time") << QSize(9, 1400) << 3.0;
        QTest::newRow("one row") << QSize(1300, 1) << 9.0;
        QTest::newRow("endless") << QSize(40, 50) << HUGE_VAL;
    }

    void isTheSameForAnyThreads()
    {
        QFETCH(QSize, size);
        QFETCH(double, radius);
        for (const auto format : { QImage::Format_RGB32, QImage::Format_Grayscale8 }) {
            const QImage image = noisePicture(size, QImage::Format_RGB32).convertToFormat(format);
            for (const Outside outside : { Outside::Edge, Outside::Nothing }) {
                const QImage one = GaussianBlur::blurred(image, radius, outside, Precision::Picture, 1);
                QCOMPARE(one.size(), size);
                for (const int threads : { 2, 3, 8 })
                    QCOMPARE(GaussianBlur::blurred(image, radius, outside, Precision::Picture, threads), one);
            }
        }
    }
};

QTEST_GUILESS_MAIN(GaussianBlurTest)
#include "GaussianBlurTest.moc"
