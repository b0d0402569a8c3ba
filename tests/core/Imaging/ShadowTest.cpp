// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ImageEffects.h"
#include "tests/support/SlowBlur.h"

#include <QTest>

using namespace tessaly;

class ShadowTest : public QObject {
    Q_OBJECT

    /// The rectangle's coverage, without antialiasing: its sides must be whole.
    static QImage shapeOf(QSize size, const QRect &rect)
    {
        QImage shape(size, QImage::Format_Grayscale8);
        shape.fill(0);
        for (int y = rect.top(); y <= rect.bottom(); ++y) {
            for (int x = rect.left(); x <= rect.right(); ++x) {
                if (shape.rect().contains(x, y))
                    shape.scanLine(y)[x] = 255;
            }
        }
        return shape;
    }

private Q_SLOTS:
    void softensRectangles_data()
    {
        QTest::addColumn<QRect>("rect");
        QTest::addColumn<double>("radius");
        QTest::newRow("hardly soft") << QRect(20, 15, 50, 40) << 0.8;
        QTest::newRow("at the change of method") << QRect(20, 15, 50, 40) << 2.9;
        QTest::newRow("soft") << QRect(20, 15, 50, 40) << 6.0;
        QTest::newRow("wider than the rectangle") << QRect(40, 30, 9, 21) << 13.0;
        QTest::newRow("very soft") << QRect(20, 15, 50, 40) << 40.0;
        QTest::newRow("off the middle") << QRect(3, 40, 30, 12) << 5.0;
        QTest::newRow("one pixel") << QRect(50, 30, 1, 1) << 1.5;
    }

    void softensRectangles()
    {
        QFETCH(QRect, rect);
        QFETCH(double, radius);
        const QSize size(97, 71);
        const QImage shape = shapeOf(size, rect), slow = test::slowBlur(shape, radius, false);
        const QImage fast = ImageEffects::rectangleShadow(size, rect, radius);
        QCOMPARE(fast.format(), QImage::Format_Grayscale8);
        const int rectangleError = test::largestDifference(fast, slow);
        QVERIFY2(rectangleError <= (radius < 1 ? 12 : 1), qPrintable(QString::number(rectangleError)));
        const QImage shaped = ImageEffects::shapedShadow(shape, radius);
        const int shapedError = test::largestDifference(shaped, slow);
        QVERIFY2(shapedError <= (radius < 1 ? 8 : 4), qPrintable(QString::number(shapedError)));
    }

    void coversSharpRectanglesByArea()
    {
        const QImage shadow = ImageEffects::rectangleShadow({ 6, 5 }, QRectF(1.5, 1, 3, 2.25), 0);
        const int expected[5][6] = { { 0, 0, 0, 0, 0, 0 }, { 0, 128, 255, 255, 128, 0 }, { 0, 128, 255, 255, 128, 0 },
            { 0, 32, 64, 64, 32, 0 }, { 0, 0, 0, 0, 0, 0 } };
        for (int y = 0; y < 5; ++y) {
            for (int x = 0; x < 6; ++x)
                QVERIFY(std::abs(shadow.constScanLine(y)[x] - expected[y][x]) <= 1);
        }
    }

    void takesAnything_data()
    {
        QTest::addColumn<QRectF>("rect");
        QTest::addColumn<double>("radius");
        QTest::addColumn<int>("level"); // in the middle of the picture; −1: any
        QTest::newRow("negative radius") << QRectF(0, 0, 20, 10) << -4.0 << 255;
        QTest::newRow("no number") << QRectF(0, 0, 20, 10) << double(NAN) << 255;
        QTest::newRow("nowhere") << QRectF(double(NAN), 0, double(NAN), 10) << 3.0 << 0;
        QTest::newRow("endless radius") << QRectF(0, 0, 20, 10) << HUGE_VAL << 0;
        QTest::newRow("endless rectangle") << QRectF(-1e300, -1e300, 2e300, 2e300) << 5.0 << 255;
        QTest::newRow("empty") << QRectF(10, 5, 0, 0) << 3.0 << 0;
        QTest::newRow("from bottom right") << QRectF(20, 10, -20, -10) << 0.0 << 255;
        QTest::newRow("far away") << QRectF(1e200, 0, 20, 10) << 5.0 << 0;
    }

    void takesAnything()
    {
        QFETCH(QRectF, rect);
        QFETCH(double, radius);
        const QImage shadow = ImageEffects::rectangleShadow({ 20, 10 }, rect, radius);
        QCOMPARE(shadow.size(), QSize(20, 10));
        QTEST(int(shadow.constScanLine(5)[10]), "level");
    }

    void keepsTheShapesFormat()
    {
        const QImage shape = shapeOf({ 60, 60 }, { 20, 20, 20, 20 });
        for (const auto format : { QImage::Format_Grayscale8, QImage::Format_Alpha8 }) {
            QImage given = shape;
            given.reinterpretAsFormat(format);
            QCOMPARE(ImageEffects::shapedShadow(given, 8).format(), format);
        }
        QVERIFY(ImageEffects::shapedShadow({}, 8).isNull());
        QVERIFY(ImageEffects::rectangleShadow({ 0, 10 }, { 0, 0, 5, 5 }, 8).isNull());
    }
};

QTEST_GUILESS_MAIN(ShadowTest)
#include "ShadowTest.moc"
