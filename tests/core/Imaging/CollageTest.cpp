// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/Collage.h"
#include "tests/support/PictureText.h"
#include "tests/support/Rows.h"
#include "tests/support/SamplePictures.h"

#include <limits>

using namespace tessaly;
using enum CollageLayout;

namespace {

RasterImage filled(QSize pixels, double scale = 1, QColor color = Qt::black)
{
    QImage image(pixels, color.alpha() == 255 ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return RasterImage::fromPixels(std::move(image), scale);
}

} // namespace

class CollageTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    /// '#' is a picture, '.' the background.
    void picturesStandInTheirOrder_data()
    {
        test::columns<QList<QSize>, CollageLayout, double, QStringList>("sizes", "layout", "gap", "picture");
        const QList<QSize> two { { 2, 2 }, { 3, 2 } };
        test::row("side by side", two, SideBySide, 1.0, QStringList { "##.###", "##.###" });
        test::row("the smaller grows", QList<QSize> { { 1, 1 }, { 2, 2 } }, SideBySide, 1.0,
            QStringList { "##.##", "##.##" });
        test::row("stacked, the smaller grows", QList<QSize> { { 2, 1 }, { 4, 1 } }, Stacked, 2.0,
            QStringList { "####", "####", "....", "....", "####" });
        test::row("no gap around one", QList<QSize> { { 2, 1 } }, Stacked, 12.0, QStringList { "##" });
        test::row("no gap below nothing", two, SideBySide, -1.0, QStringList { "#####", "#####" });
        test::row("an unfit gap", two, SideBySide, std::nan(""), QStringList { "#####", "#####" });
        test::row("what has no area is left out", QList<QSize> { {}, { 1, 1 }, { 0, 5 }, { 1, 1 } }, SideBySide, 2.0,
            QStringList { "#..#" });
    }

    void picturesStandInTheirOrder()
    {
        QFETCH(QList<QSize>, sizes);
        QFETCH(CollageLayout, layout);
        QFETCH(double, gap);
        QList<RasterImage> images;
        for (const QSize size : sizes)
            images += filled(size);
        const auto collage = Collage::combine(images, layout, gap, Qt::white);
        QVERIFY(collage);
        QTEST(test::asText(collage->pixels), "picture");
    }

    void sharedSide_data()
    {
        test::columns<QList<QSize>, CollageLayout, QSizeF>("sizes", "layout", "points");
        test::row(
            "the largest height", QList<QSize> { { 500, 600 }, { 100, 300 } }, SideBySide, QSizeF(500 + 12 + 200, 600));
        test::row("at most 1200 high", QList<QSize> { { 1000, 2400 }, { 100, 600 } }, SideBySide,
            QSizeF(500 + 12 + 200, 1200));
        test::row("one alone", QList<QSize> { { 3000, 1500 } }, SideBySide, QSizeF(2400, 1200));
        test::row(
            "at most 1200 wide", QList<QSize> { { 2400, 1000 }, { 600, 100 } }, Stacked, QSizeF(1200, 500 + 12 + 200));
        test::row("never a side of nothing", QList<QSize> { { 3000, 1 }, { 1, 3000 } }, SideBySide,
            QSizeF(3600000.0 + 12, 1200));
    }

    void sharedSide()
    {
        QFETCH(QList<QSize>, sizes);
        QFETCH(CollageLayout, layout);
        QFETCH(QSizeF, points);
        QList<RasterImage> images;
        for (const QSize size : sizes)
            images += filled(size);
        const auto collage = Collage::combine(images, layout, Collage::usualGap, Qt::white);
        QCOMPARE(collage.has_value(), points.width() < 100'000);
        if (collage)
            QCOMPARE(collage->pointSize, points);
    }

    void pixelsPerPoint_data()
    {
        test::columns<QList<double>, qint64, QSize, double>("scales", "maxPixels", "pixels", "scale");
        // Each stands for 100 × 100 points; with the gap of 10 the collage is 210 × 100.
        const qint64 many = 1'000'000;
        test::row("those of the finest", QList<double> { 1, 2 }, many, QSize(420, 200), 2.0);
        test::row("between whole numbers", QList<double> { 1.5, 1 }, many, QSize(315, 150), 1.5);
        test::row("at the limit", QList<double> { 1, 2 }, qint64(84'000), QSize(420, 200), 2.0);
        test::row("coarser beyond it", QList<double> { 1, 2 }, qint64(83'999), QSize(210, 100), 1.0);
        test::row("the next of them", QList<double> { 3, 2 }, qint64(90'000), QSize(420, 200), 2.0);
        test::row("none of them", QList<double> { 3, 2 }, qint64(30'000), QSize(210, 100), 1.0);
        test::row("too many in any case", QList<double> { 3, 2 }, qint64(20'999), QSize(), 0.0);
    }

    void pixelsPerPoint()
    {
        QFETCH(QList<double>, scales);
        QFETCH(qint64, maxPixels);
        QFETCH(QSize, pixels);
        QFETCH(double, scale);
        QList<RasterImage> images;
        for (const double each : scales)
            images += filled(QSize(100, 100) * each, each);
        const auto collage = Collage::combine(images, SideBySide, 10, Qt::white, maxPixels);
        QCOMPARE(collage ? collage->pixelSize() : QSize(), pixels);
        if (collage)
            QCOMPARE(collage->pointSize, QSizeF(pixels) / scale);
    }

    /// A picture that is not scaled keeps its very pixels, wherever it stands.
    void unscaledPixelsStay()
    {
        const QImage noise = test::samplePicture({ 61, 47 }, test::Transparency::None);
        const RasterImage image = RasterImage::fromPixels(noise, 1.25);
        const auto collage = Collage::combine({ image, image, image }, Stacked, 3.3, Qt::white);
        QVERIFY(collage);
        for (const double start : { 0.0, 47 + 3.3 * 1.25, 2 * (47 + 3.3 * 1.25) })
            QCOMPARE(collage->pixels.copy(0, qRound(start), 61, 47), noise);
    }

    void transparencyShowsTheBackground_data()
    {
        test::columns<QColor, QColor, QColor>("picture", "background", "result");
        test::row("half", QColor(255, 0, 0, 128), QColor(Qt::white), QColor(255, 127, 127));
        test::row("clear", QColor(0, 0, 0, 0), QColor(10, 20, 30), QColor(10, 20, 30));
        test::row("on a clear one", QColor(0, 0, 255, 51), QColor(0, 0, 0, 0), QColor(0, 0, 255, 51));
        test::row("opaque", QColor(1, 2, 3), QColor(0, 0, 0, 0), QColor(1, 2, 3));
    }

    void transparencyShowsTheBackground()
    {
        QFETCH(QColor, picture);
        QFETCH(QColor, background);
        const auto collage = Collage::combine({ filled({ 3, 3 }, 1, picture) }, SideBySide, 0, background);
        QVERIFY(collage);
        QCOMPARE(collage->pixels.hasAlphaChannel(), background.alpha() < 255);
        QTEST(collage->pixels.pixelColor(1, 1), "result");
    }

    void theSameForAnyNumberOfThreads()
    {
        QList<RasterImage> images;
        for (const auto transparency : { test::Transparency::None, test::Transparency::Soft })
            images += RasterImage::fromPixels(test::samplePicture({ 301, 207 }, transparency), 2);
        images += filled({ 90, 500 });
        const auto one = Collage::combine(images, SideBySide, 12, Qt::white, 1 << 27, {}, 1);
        QVERIFY(one);
        for (const int threads : { 2, 3, 8 })
            QCOMPARE(Collage::combine(images, SideBySide, 12, Qt::white, 1 << 27, {}, threads), one);
    }

    void farBeyondThePaintersReach()
    {
        const QList<RasterImage> images(40, filled({ 1000, 2 }));
        const auto collage = Collage::combine(images, SideBySide, 0, Qt::white);
        QVERIFY(collage);
        QCOMPARE(collage->pixelSize(), QSize(40'000, 2));
        QCOMPARE(collage->pixels.pixelColor(39'999, 1), QColor(Qt::black));
    }

    void absurdSizesGiveNothing_data()
    {
        test::columns<QSizeF, double>("points", "gap");
        const double huge = std::numeric_limits<double>::max(), tiny = std::numeric_limits<double>::min();
        test::row("a gap", QSizeF(2, 2), huge);
        test::row("a line without end", QSizeF(huge, tiny), 12.0);
        test::row("beyond numbers", QSizeF(huge, huge / 1e10), 1e9);
        test::row("not a number", QSizeF(std::nan(""), 2), 12.0);
    }

    void absurdSizesGiveNothing()
    {
        QFETCH(QSizeF, points);
        QFETCH(double, gap);
        RasterImage image = filled({ 2, 2 });
        image.pointSize = points;
        QVERIFY(!Collage::combine({ image, image }, SideBySide, gap, Qt::white));
        QVERIFY(!Collage::combine({}, Stacked, gap, Qt::white));
    }

    void noLongerWanted()
    {
        Cancellation cancellation;
        cancellation.cancel();
        const auto collage
            = Collage::combine({ filled({ 2, 2 }), filled({ 3, 3 }) }, Stacked, 1, Qt::white, 1000, cancellation);
        QVERIFY(!collage);
    }
};

QTEST_GUILESS_MAIN(CollageTest)
#include "CollageTest.moc"
