// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ImageEncoder.h"
#include "core/Export/OpaqueCopy.h"
#include "core/Imaging/ImageReading.h"
#include "tests/support/Rows.h"
#include "tests/support/SamplePictures.h"

using namespace tessaly;
using test::Transparency;

namespace {

constexpr EncodeOptions lossless { .quality = 1, .threads = 2 };

/// What a format cannot hold is left out of the picture first, so that all of it must come back.
RasterImage asKept(ExportFormat format, const QImage &pixels, double pixelsPerPoint)
{
    const RasterImage image = RasterImage::fromPixels(pixels, pixelsPerPoint);
    return format == ExportFormat::Bmp ? opaque(image) : image;
}

} // namespace

class ImageEncoderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void losslessFormatsGiveEveryPixelBack_data()
    {
        test::columns<ExportFormat, QImage>("format", "pixels");
        for (const ExportFormat format :
            { ExportFormat::Png, ExportFormat::Tiff, ExportFormat::Webp, ExportFormat::Gif, ExportFormat::Bmp }) {
            for (const QSize size :
                { QSize(1, 1), QSize(7, 5), QSize(3, 1), QSize(1, 257), QSize(1001, 37), QSize(641, 700) }) {
                for (const Transparency transparency :
                    { Transparency::None, Transparency::Binary, Transparency::Soft }) {
                    if (format == ExportFormat::Gif && transparency == Transparency::Soft)
                        continue;
                    QTest::addRow("%s %d × %d, transparency %d", rawValue(format).data(), size.width(), size.height(),
                        int(transparency))
                        << format << test::samplePicture(size, transparency, unsigned(size.width()));
                }
            }
        }
    }

    void losslessFormatsGiveEveryPixelBack()
    {
        QFETCH(ExportFormat, format);
        QFETCH(QImage, pixels);
        const RasterImage image = asKept(format, pixels, 1);
        const auto file = encodeImage(image, format, lossless);
        QVERIFY(file);
        const auto back = readImage(*file, QStringLiteral("picture"));
        QVERIFY2(back, back ? "" : qPrintable(back.failure().message));
        QCOMPARE(back->pixels.convertToFormat(image.pixels.format()), image.pixels);
        const auto again = encodeImage(*back, format, lossless);
        QVERIFY(again && *again == *file);
    }

    void everyPremultipliedColorComesBack()
    {
        // Alpha from row to row, the component from column to column, never above alpha.
        QImage pixels(256, 256, QImage::Format_ARGB32_Premultiplied);
        for (int alpha = 0; alpha < 256; ++alpha) {
            for (int x = 0; x < 256; ++x) {
                const int part = std::min(x, alpha);
                reinterpret_cast<QRgb *>(pixels.scanLine(alpha))[x] = qRgba(part, alpha - part, part, alpha);
            }
        }
        for (const ExportFormat format : { ExportFormat::Png, ExportFormat::Tiff, ExportFormat::Webp }) {
            const auto back
                = readImage(*encodeImage(RasterImage::fromPixels(pixels), format, lossless), QStringLiteral("picture"));
            QCOMPARE(back->pixels, pixels);
        }
    }

    void resolutionComesBack_data()
    {
        test::columns<ExportFormat, double>("format", "scale");
        for (const ExportFormat format :
            { ExportFormat::Png, ExportFormat::Jpeg, ExportFormat::Tiff, ExportFormat::Webp, ExportFormat::Bmp }) {
            for (const double scale : { 1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0, 4.0 })
                QTest::addRow("%s at %g", rawValue(format).data(), scale) << format << scale;
        }
    }

    void resolutionComesBack()
    {
        QFETCH(ExportFormat, format);
        QFETCH(double, scale);
        const RasterImage image = RasterImage::fromPixels(test::samplePicture({ 420, 84 }, Transparency::None), scale);
        const auto back = readImage(*encodeImage(image, format, {}), QStringLiteral("picture"));
        QVERIFY(back);
        QCOMPARE(back->pointSize, image.pointSize);
    }

    void bytesDoNotDependOnThreads()
    {
        for (const Transparency transparency : { Transparency::None, Transparency::Soft }) {
            const RasterImage image = RasterImage::fromPixels(test::samplePicture({ 903, 801 }, transparency));
            for (const auto &row : enumNames<ExportFormat>) {
                const auto alone = encodeImage(image, row.value, { .threads = 1 });
                const auto together = encodeImage(image, row.value, { .threads = 5 });
                QVERIFY2(*alone == *together, row.raw.data());
            }
        }
    }

    void pictureOfManyColorsBecomesAStableGif()
    {
        QImage pixels(300, 200, QImage::Format_RGB32);
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 300; ++x)
                pixels.setPixel(x, y, qRgb(x * 255 / 299, y * 255 / 199, 128));
        }
        const auto file = encodeImage(RasterImage::fromPixels(pixels), ExportFormat::Gif, {});
        const auto back = readImage(*file, QStringLiteral("picture"));
        QVERIFY(back);
        double squares = 0;
        for (int y = 0; y < 200; ++y) {
            for (int x = 0; x < 300; ++x)
                squares += std::pow(qGreen(back->pixels.pixel(x, y)) - qGreen(pixels.pixel(x, y)), 2);
        }
        QVERIFY2(squares / (300 * 200) < 120, qPrintable(QString::number(squares / (300 * 200))));
        QVERIFY(*encodeImage(*back, ExportFormat::Gif, {}) == *file);
    }

    void pictureBeyondAFormatIsRefusedInASentence_data()
    {
        test::columns<ExportFormat, QSize>("format", "largest");
        test::row("WebP, wide", ExportFormat::Webp, QSize(16383, 1));
        test::row("WebP, high", ExportFormat::Webp, QSize(1, 16383));
        test::row("JPEG", ExportFormat::Jpeg, QSize(65500, 1));
        test::row("GIF", ExportFormat::Gif, QSize(1, 65535));
    }

    void pictureBeyondAFormatIsRefusedInASentence()
    {
        QFETCH(ExportFormat, format);
        QFETCH(QSize, largest);
        const auto encoded = [&](QSize size) {
            QImage pixels(size, QImage::Format_RGB32);
            pixels.fill(Qt::red);
            return encodeImage(RasterImage::fromPixels(pixels), format, { .quality = 0.5 });
        };
        QVERIFY(encoded(largest));
        const QSize larger = largest.width() > 1 ? largest + QSize(1, 0) : largest + QSize(0, 1);
        const auto refused = encoded(larger);
        QVERIFY(!refused);
        QVERIFY(refused.failure().message.contains(label(format)));
        QVERIFY(refused.failure().message.contains(QString::number(std::max(largest.width(), largest.height()))));
    }

    void opaquePictureCostsNoAlpha()
    {
        const QImage pixels = test::samplePicture({ 90, 70 }, Transparency::None);
        const RasterImage plain = RasterImage::fromPixels(pixels);
        const RasterImage withAlpha { pixels.convertToFormat(QImage::Format_ARGB32_Premultiplied), plain.pointSize };
        for (const auto &row : enumNames<ExportFormat>)
            QVERIFY2(*encodeImage(withAlpha, row.value, {}) == *encodeImage(plain, row.value, {}), row.raw.data());
    }

    void transparencyLiesOnWhite()
    {
        QImage pixels(3, 1, QImage::Format_ARGB32_Premultiplied);
        pixels.setPixelColor(0, 0, Qt::transparent);
        pixels.setPixelColor(1, 0, QColor(255, 0, 0, 51));
        pixels.setPixelColor(2, 0, QColor(10, 20, 30));
        const RasterImage image = RasterImage::fromPixels(pixels, 2);
        const RasterImage result = opaque(image);
        QCOMPARE(result.pixels.format(), QImage::Format_RGB32);
        QCOMPARE(result.pixels.pixel(0, 0), qRgb(255, 255, 255));
        QCOMPARE(result.pixels.pixel(1, 0), qRgb(255, 204, 204));
        QCOMPARE(result.pixels.pixel(2, 0), qRgb(10, 20, 30));
        QCOMPARE(result.pointSize, image.pointSize);
    }

    void nothingIsNoPicture()
    {
        for (const auto &row : enumNames<ExportFormat>)
            QVERIFY(!encodeImage({}, row.value, {}));
    }
};

QTEST_GUILESS_MAIN(ImageEncoderTest)
#include "ImageEncoderTest.moc"
