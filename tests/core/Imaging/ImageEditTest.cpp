// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ImageEdit.h"
#include "tests/support/PictureText.h"
#include "tests/support/SamplePictures.h"

#include <QTest>

using namespace tessaly;

namespace {

/// '#' is black, '.' white.
RasterImage fromText(const QStringList &rows, double scale = 1)
{
    QImage image(int(rows.first().size()), int(rows.size()), QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, rows[y][x] == u'#' ? 0xff000000 : 0xffffffff);
    }
    return RasterImage::fromPixels(image, scale);
}

const QStringList flag { "##..", "#...", "...#" };

RasterImage sample(QSize size, test::Transparency transparency = test::Transparency::None)
{
    return RasterImage::fromPixels(test::samplePicture(size, transparency));
}

} // namespace

class ImageEditTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void movesPixels_data()
    {
        QTest::addColumn<ImageEdit>("edit");
        QTest::addColumn<QStringList>("picture");
        QTest::newRow("clockwise") << ImageEdit::rotate(true) << QStringList { ".##", "..#", "...", "#.." };
        QTest::newRow("counterclockwise") << ImageEdit::rotate(false) << QStringList { "..#", "...", "#..", "##." };
        QTest::newRow("left to right") << ImageEdit::flip(true) << QStringList { "..##", "...#", "#..." };
        QTest::newRow("upside down") << ImageEdit::flip(false) << QStringList { "...#", "#...", "##.." };
        QTest::newRow("crop") << ImageEdit::crop({ 0, 0, 1, 1 }) << QStringList { "##", "#." };
        QTest::newRow("crop to one pixel") << ImageEdit::crop({ 1.5, 1, 0.5, 0.5 }) << QStringList { "#" };
        QTest::newRow("crop between pixels") << ImageEdit::crop({ 0.2, 0.2, 0.9, 0.5 }) << QStringList { "##" };
        QTest::newRow("crop beyond the picture") << ImageEdit::crop({ 1, -7, 100, 8 }) << QStringList { "..", ".." };
        QTest::newRow("crop drawn backwards") << ImageEdit::crop({ 1, 1, -1, -1 }) << QStringList { "##", "#." };
    }

    /// Two pixels a point, so that the result's size in points is half of what is seen.
    void movesPixels()
    {
        QFETCH(ImageEdit, edit);
        const auto result = applied(fromText(flag, 2), edit);
        QVERIFY(result);
        QTEST(test::asText(result->pixels), "picture");
        QCOMPARE(result->pointSize, QSizeF(result->pixels.size()) / 2);
    }

    void cannotBeMade_data()
    {
        QTest::addColumn<ImageEdit>("edit");
        QTest::newRow("crop outside") << ImageEdit::crop({ 50, 50, 9, 9 });
        QTest::newRow("crop of less than half a pixel") << ImageEdit::crop({ 0.6, 0, 0.3, 3 });
        QTest::newRow("crop of nothing") << ImageEdit::crop({});
        QTest::newRow("crop of no number") << ImageEdit::crop({ qQNaN(), qQNaN(), qQNaN(), qQNaN() });
        QTest::newRow("no width") << ImageEdit::resize({ 0, 5 });
        QTest::newRow("negative") << ImageEdit::resize({ 5, -5 });
        QTest::newRow("more than memory") << ImageEdit::resize({ 2'000'000'000, 2'000'000'000 });
    }

    void cannotBeMade()
    {
        QFETCH(ImageEdit, edit);
        QVERIFY(!applied(fromText(flag), edit));
        QVERIFY(!applied(RasterImage(), edit));
    }

    void whatChangesNothingSharesThePixels()
    {
        const RasterImage picture = fromText(flag, 2);
        for (const ImageEdit &edit :
            { ImageEdit::crop({ 0, 0, 2, 1.5 }), ImageEdit::resize({ 4, 3 }), ImageEdit::sharpen(0) })
            QCOMPARE(applied(picture, edit)->pixels.constBits(), picture.pixels.constBits());
    }

    void orientationsFormAGroup()
    {
        const RasterImage picture = sample({ 37, 150 });
        for (int first = 0; first < 8; ++first) {
            const Orientation one { first / 2, first % 2 == 1 };
            const RasterImage turned = *oriented(picture, one, 2);
            QCOMPARE(*oriented(turned, one.inverse(), 1), picture);
            QCOMPARE(one.then(one.inverse()), Orientation());
            for (int second = 0; second < 8; ++second) {
                const Orientation other { second / 2, second % 2 == 1 };
                QCOMPARE(*oriented(turned, other, 1), *oriented(picture, one.then(other), 3));
            }
        }
    }

    void resizingKeepsAveragesAndPointsPerPixel()
    {
        const RasterImage three = fromText({ "###", "#.#", "###" }, 3);
        const RasterImage one = *applied(three, ImageEdit::resize({ 1, 1 }));
        QCOMPARE(one.pointSize.width() * 3, 1.0);
        const int grey = qGray(one.pixels.pixel(0, 0)); // the middle counts most, but not alone
        QVERIFY2(grey > 255 / 9 && grey < 128, qPrintable(QString::number(grey)));

        QImage flat(301, 97, QImage::Format_ARGB32_Premultiplied);
        flat.fill(QColor(200, 100, 50, 128));
        for (const QSize size : { QSize(1, 1), QSize(40, 200), QSize(1000, 3) }) {
            const QImage result = applied(RasterImage::fromPixels(flat), ImageEdit::resize(size))->pixels;
            QCOMPARE(result.size(), size);
            QCOMPARE(result.pixel(size.width() / 2, size.height() / 2), flat.pixel(0, 0));
            QCOMPARE(result.pixel(0, size.height() - 1), flat.pixel(0, 0));
        }
    }

    void enlargingIsSmooth()
    {
        const QImage result = applied(fromText({ "#." }), ImageEdit::resize({ 16, 1 }))->pixels;
        for (int x = 1; x < 16; ++x)
            QVERIFY(qGray(result.pixel(x, 0)) >= qGray(result.pixel(x - 1, 0)));
        QVERIFY(qGray(result.pixel(0, 0)) == 0 && qGray(result.pixel(15, 0)) == 255);
        QVERIFY(qAbs(qGray(result.pixel(7, 0)) + qGray(result.pixel(8, 0)) - 255) <= 1);
    }

    void sharpeningSteepensEdgesOnly()
    {
        QImage step(20, 9, QImage::Format_RGB32);
        step.fill(qRgb(100, 100, 100));
        for (int y = 0; y < step.height(); ++y) {
            for (int x = 10; x < 20; ++x)
                step.setPixel(x, y, qRgb(150, 150, 150));
        }
        const QImage result = sharpenedPixels(RasterImage::fromPixels(step), 1);
        QCOMPARE(result.pixel(0, 0), step.pixel(0, 0));
        QCOMPARE(result.pixel(19, 8), step.pixel(19, 8));
        // A binomial of five takes 5/16 of the step from the two pixels beside it.
        QCOMPARE(qGray(result.pixel(9, 4)), 100 - qRound(50 * 5 / 16.0));
        QCOMPARE(qGray(result.pixel(10, 4)), 150 + qRound(50 * 5 / 16.0));
        QCOMPARE(qGray(sharpenedPixels(RasterImage::fromPixels(step), 0.5).pixel(10, 4)), 150 + 8);
        QCOMPARE(qGray(sharpenedPixels(RasterImage::fromPixels(step), 1e9).pixel(10, 4)), 255);
    }

    void transparencyStaysAndHoldsItsColors()
    {
        const RasterImage soft = sample({ 90, 70 }, test::Transparency::Soft);
        const QImage result = sharpenedPixels(soft, 2);
        QVERIFY(result != soft.pixels);
        for (int y = 0; y < result.height(); ++y) {
            for (int x = 0; x < result.width(); ++x) {
                const QRgb pixel = reinterpret_cast<const QRgb *>(result.constScanLine(y))[x];
                QCOMPARE(qAlpha(pixel), qAlpha(reinterpret_cast<const QRgb *>(soft.pixels.constScanLine(y))[x]));
                QVERIFY(std::max({ qRed(pixel), qGreen(pixel), qBlue(pixel) }) <= qAlpha(pixel));
            }
        }
    }

    void threadsMakeNoDifference()
    {
        for (const auto transparency : { test::Transparency::None, test::Transparency::Soft }) {
            const RasterImage picture = sample({ 211, 333 }, transparency);
            for (const ImageEdit &edit : { ImageEdit::rotate(true), ImageEdit::flip(true), ImageEdit::sharpen(0.7),
                     ImageEdit::resize({ 100, 150 }), ImageEdit::resize({ 400, 333 }) })
                QCOMPARE(applied(picture, edit, 1), applied(picture, edit, 5));
        }
    }

    void cancelledWorkHasNoResult()
    {
        Cancellation cancellation;
        cancellation.cancel();
        for (const ImageEdit &edit : { ImageEdit::rotate(true), ImageEdit::sharpen(1), ImageEdit::resize({ 10, 10 }) })
            QVERIFY(!applied(sample({ 64, 64 }), edit, 1, cancellation));
    }

private:
    static QImage sharpenedPixels(const RasterImage &picture, double amount)
    {
        return applied(picture, ImageEdit::sharpen(amount))->pixels;
    }
};

QTEST_GUILESS_MAIN(ImageEditTest)
#include "ImageEditTest.moc"
