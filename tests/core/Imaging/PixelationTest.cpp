// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/Pixelation.h"
#include "core/Imaging/CellMeans.h"
#include "core/Imaging/CellNoise.h"
#include "core/Imaging/ImageEffects.h"
#include "tests/support/NoisePicture.h"
#include "tests/support/Rows.h"

#include <cmath>

using namespace tessaly;
using test::noisePicture;

namespace {

/// Blurred pixel by pixel and averaged pixel by pixel: the mean of the cell that holds the pixel at (x, y).
double slowMean(const QImage &image, double side, int x, int y, int byte)
{
    const auto cellOf = [side](int pixel, int length) { return std::floor((pixel + 0.5 - length / 2.0) / side + 0.5); };
    const int radius = int(std::lround(side / 2)), far = int(side) + 1;
    double sum = 0;
    qint64 count = 0;
    for (int row = y - far; row <= y + far; ++row) {
        for (int column = x - far; column <= x + far; ++column) {
            if (cellOf(row, image.height()) != cellOf(y, image.height())
                || cellOf(column, image.width()) != cellOf(x, image.width()))
                continue;
            for (int dy = -radius; dy <= radius; ++dy) {
                const uchar *line = image.constScanLine(std::clamp(row + dy, 0, image.height() - 1));
                for (int dx = -radius; dx <= radius; ++dx, ++count)
                    sum += line[4 * std::clamp(column + dx, 0, image.width() - 1) + byte];
            }
        }
    }
    return sum / double(count);
}

} // namespace

class PixelationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sizesCells_data()
    {
        test::columns<QSize, double, double, double>("region", "strength", "pixelsPerPoint", "side");

        test::row("usual", QSize(240, 120), 1.0, 1.0, 14.0);
        test::row("at two pixels per point", QSize(480, 240), 1.0, 2.0, 28.0);
        test::row("a twelfth wins", QSize(1000, 600), 1.0, 1.0, 50.0);
        test::row("two cells and a half", QSize(200, 25), 1.0, 1.0, 10.0);
        test::row("weak does not shrink the floor", QSize(240, 120), 0.5, 1.0, 14.0);
        test::row("strong raises it", QSize(240, 120), 2.0, 1.0, 28.0);
        test::row("tall", QSize(120, 240), 3.0, 1.0, 42.0);
        test::row("six at least", QSize(9, 300), 1.0, 1.0, 6.0);
        test::row("no strength is 0.05", QSize(6000, 6000), 0.0, 1.0, 25.0);
        test::row("negative too", QSize(6000, 6000), -7.0, 1.0, 25.0);
        test::row("no number is 1", QSize(1000, 600), double(NAN), 1.0, 50.0);
        test::row("no scale is 1", QSize(240, 120), 1.0, -2.0, 14.0);
        test::row("nothing to hide", QSize(0, 0), HUGE_VAL, 1.0, 6.0);
    }

    void sizesCells()
    {
        QFETCH(QSize, region);
        QFETCH(double, strength);
        QFETCH(double, pixelsPerPoint);
        QTEST(ImageEffects::pixelCellSide(region, strength, pixelsPerPoint), "side");
    }

    void averagesCells_data()
    {
        test::columns<QSize, double>("size", "side");
        test::row("whole cells", QSize(28, 14), 7.0);
        test::row("broken sides", QSize(41, 30), 6.37);
        test::row("even cells", QSize(40, 33), 10.0);
        test::row("runs longer than 16 bits hold", QSize(64, 120), 50.0);
        test::row("one column", QSize(1, 40), 6.0);
        test::row("one row", QSize(40, 1), 6.0);
        test::row("smaller than a cell", QSize(5, 4), 23.0);
    }

    void averagesCells()
    {
        QFETCH(QSize, size);
        QFETCH(double, side);
        const QImage image = noisePicture(size, QImage::Format_ARGB32_Premultiplied);
        const CellAxis columns(size.width(), side), rows(size.height(), side);
        const CellAverager averager(image, columns, rows);
        for (int row = 0; row < rows.count(); ++row) {
            const auto means = averager.row(row);
            QCOMPARE(int(means.size()), columns.count());
            for (int column = 0; column < columns.count(); ++column) {
                for (int byte = 0; byte < 4; ++byte) {
                    const double slow = slowMean(image, side, columns.start(column), rows.start(row), byte);
                    QVERIFY(std::abs(means[column][byte] - slow) < 0.01);
                }
            }
        }
    }

    void cellsCoverEveryPixelOnce()
    {
        for (int length = 1; length < 200; ++length) {
            for (const double side : { 6.0, 6.5, 20 / 3.0, 14.0, 57.3, double(CellAxis::maxSide) }) {
                const CellAxis axis(length, side);
                QCOMPARE(axis.start(0), 0);
                QCOMPARE(axis.start(axis.count()), length);
                // The middle cell lies about the middle.
                const int middle = -axis.fromMiddle(0);
                QVERIFY(std::abs(axis.start(middle) + axis.start(middle + 1) - length) <= 1);
                for (int cell = 0; cell < axis.count(); ++cell)
                    QVERIFY(axis.start(cell) < axis.start(cell + 1));
            }
        }
    }

    void blendsNoiseSoftly_data()
    {
        test::columns<double, double, double>("below", "above", "blended");
        test::row("half changes nothing", 0.3, 0.5, 0.3);
        test::row("dark", 0.5, 0.38, 0.44);
        test::row("light on dark", 0.2, 0.62, 0.2 + 0.24 * (0.448 - 0.2));
        test::row("light on light", 0.64, 0.62, 0.64 + 0.24 * 0.16);
        test::row("black stays", 0.0, 0.62, 0.0);
        test::row("white stays", 1.0, 0.38, 1.0);
    }

    void blendsNoiseSoftly()
    {
        QFETCH(double, below);
        QFETCH(double, above);
        QFETCH(double, blended);
        QVERIFY(std::abs(double(CellNoise::softLight(float(below), float(above))) - blended) < 1e-6);
    }

    void noiseFillsItsRange()
    {
        double lowest = 1, highest = 0, sum = 0;
        constexpr int side = 100;
        for (int cell = 0; cell < side * side; ++cell) {
            const double grey = double(CellNoise::grey(5, cell % side - 50, cell / side - 50));
            lowest = std::min(lowest, grey);
            highest = std::max(highest, grey);
            sum += grey;
        }
        QVERIFY(lowest >= 0.38 && lowest < 0.40);
        QVERIFY(highest <= 0.62001 && highest > 0.60);
        QVERIFY(std::abs(sum / (side * side) - 0.5) < 0.003);
    }

    void noiseDependsOnTheSeed()
    {
        QImage flat(120, 120, QImage::Format_RGB32);
        flat.fill(QColor(120, 120, 120));
        const QImage one = ImageEffects::pixelated(flat, 1, 1, { 1 }), two = ImageEffects::pixelated(flat, 1, 1, { 2 });
        QCOMPARE(one, ImageEffects::pixelated(flat, 1, 1, { 1 }));
        int equal = 0;
        for (int x = 0; x < 120; x += 14)
            equal += one.pixel(x, 60) == two.pixel(x, 60) ? 1 : 0;
        QVERIFY(equal <= 3);
        QVERIFY(ImageEffects::NoiseSeed::random().value != ImageEffects::NoiseSeed::random().value);
    }

    void leavesNoTransparency()
    {
        QImage clear(40, 40, QImage::Format_ARGB32_Premultiplied);
        clear.fill(Qt::transparent);
        for (const QImage &hidden :
            { ImageEffects::pixelated(clear, 1, 1, { 3 }), ImageEffects::obscuringBlur(clear, 1) }) {
            QVERIFY(!hidden.hasAlphaChannel());
            const QColor color = hidden.pixelColor(20, 20);
            QVERIFY(color.red() >= 96 && color.red() <= 159);
            QCOMPARE(color.red(), color.blue());
        }
    }

    /// Every style of hiding, on a region that is a window into a larger picture.
    void readsNothingOutsideTheRegion()
    {
        QImage whole = noisePicture({ 90, 80 }, QImage::Format_RGB32);
        const QRect area(11, 7, 61, 50);
        const auto region = [&] {
            return QImage(whole.constScanLine(area.top()) + 4 * area.left(), area.width(), area.height(),
                whole.bytesPerLine(), whole.format());
        };
        const auto pixelate = [&] { return ImageEffects::pixelated(region(), 1, 1, { 9 }); };
        const auto blur = [&] { return ImageEffects::obscuringBlur(region(), 1); };
        const QImage pixelatedBefore = pixelate(), blurredBefore = blur();
        const QImage kept = whole.copy(area);
        whole.fill(Qt::magenta);
        for (int y = 0; y < area.height(); ++y)
            memcpy(
                whole.scanLine(area.top() + y) + 4 * area.left(), kept.constScanLine(y), 4 * std::size_t(area.width()));
        QCOMPARE(pixelate(), pixelatedBefore);
        QCOMPARE(blur(), blurredBefore);
    }

    void isTheSameForAnyThreads()
    {
        const QImage image = noisePicture({ 301, 203 }, QImage::Format_RGB32);
        for (const double side : { 6.0, 33.3, 4000.0 })
            QCOMPARE(Pixelation::pixelated(image, side, { 4 }, 5), Pixelation::pixelated(image, side, { 4 }, 1));
    }

    void takesAnyStrengthAndShape_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : { QSize(1, 1), QSize(1, 500), QSize(500, 1), QSize(5, 3), QSize(64, 64) })
            QTest::addRow("%d x %d", size.width(), size.height()) << size;
    }

    void takesAnyStrengthAndShape()
    {
        QFETCH(QSize, size);
        for (const auto format : { QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied, QImage::Format_RGB888 }) {
            const QImage region = noisePicture(size, QImage::Format_RGB32).convertToFormat(format);
            for (const double strength : { double(NAN), HUGE_VAL, -HUGE_VAL, -1.0, 0.0, 1e300, 1.0 }) {
                QCOMPARE(ImageEffects::pixelated(region, strength, strength, { 1 }).size(), size);
                QCOMPARE(ImageEffects::obscuringBlur(region, strength).size(), size);
            }
        }
        QVERIFY(ImageEffects::pixelated({}, 1, 1, { 1 }).isNull());
        QVERIFY(ImageEffects::obscuringBlur({}, 1).isNull());
    }
};

QTEST_GUILESS_MAIN(PixelationTest)
#include "PixelationTest.moc"
