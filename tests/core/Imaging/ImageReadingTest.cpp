// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ImageReading.h"
#include "tests/support/PngFile.h"
#include "tests/support/Rows.h"

#include <QBuffer>
#include <QColorSpace>
#include <QTemporaryDir>

#include <sys/stat.h>

using namespace tessaly;

namespace {

QImage gradient(QSize size = { 60, 40 })
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x * 4, y * 6, (x * y) % 251));
    }
    return image;
}

QByteArray saved(const QImage &image, const char *format)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

/// A PNG file whose header claims a size; its data are those of a tiny picture.
QByteArray pngClaiming(quint32 width, quint32 height)
{
    return test::pngHeader(width, height, QByteArray("\x08\x02\x00\x00\x00", 5))
        + test::pngChunk("IDAT", test::pngData(QByteArray(4, '\0'))) + test::pngChunk("IEND", {});
}

/// A PNG file with a chunk put in before its pixels.
QByteArray pngWith(const QByteArray &type, const QByteArray &content)
{
    QImage image = gradient();
    QByteArray file = saved(image, "png");
    const qsizetype old = file.indexOf("pHYs") - 4;
    if (old > 0)
        file.remove(old, 21);
    return file.insert(file.indexOf("IDAT") - 4, test::pngChunk(type, content));
}

QByteArray pngOfDensity(quint32 perMetre, char unit = 1)
{
    return pngWith("pHYs", test::bigEndian(perMetre) + test::bigEndian(perMetre) + QByteArray(1, unit));
}

QByteArray withBytes(QByteArray file, qsizetype at, const QByteArray &bytes)
{
    return file.replace(at, bytes.size(), bytes);
}

QByteArray jpegOfDensity(char unit, quint16 dots)
{
    const char bytes[] = { unit, char(dots >> 8), char(dots), char(dots >> 8), char(dots) };
    return withBytes(saved(gradient(), "jpg"), 13, QByteArray(bytes, 5));
}

/// An EXIF block, big-endian, in a JPEG file without a density of its own.
QByteArray jpegWithExif(const QByteArray &entries, int count, const QByteArray &values = {})
{
    const QByteArray tiff = QByteArray("MM\0*\0\0\0\x08\0", 9) + char(count) + entries + QByteArray(4, '\0') + values;
    const QByteArray content = QByteArray("Exif\0\0", 6) + tiff;
    const QByteArray segment = QByteArray("\xff\xe1\0", 3) + char(content.size() + 2) + content;
    return jpegOfDensity(0, 1).insert(20, segment);
}

} // namespace

class ImageReadingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void badBytesGiveOneSentence_data()
    {
        test::columns<QByteArray, QString>("bytes", "reason");
        const QString incomplete = QStringLiteral("damaged or incomplete"), unknown = QStringLiteral("not a picture");
        test::row("nothing", QByteArray(), QStringLiteral("is empty"));
        test::row("text", QByteArray("hello, world"), unknown);
        test::row("drawing", QByteArray("<svg xmlns='http://www.w3.org/2000/svg'><text>x</text></svg>"), unknown);
        test::row("PNG, signature only", saved(gradient(), "png").left(8), incomplete);
        test::row("PNG, 100 000 × 100 000", pngClaiming(100000, 100000), QStringLiteral("100000 × 100000 pixels"));
        test::row("PNG, larger than its data", pngClaiming(5000, 5000), incomplete);
        QByteArray flipped = saved(gradient(), "png");
        flipped[flipped.size() / 2] = char(flipped[flipped.size() / 2] ^ 0x10);
        test::row("PNG, all but its end", saved(gradient(), "png").chopped(12), incomplete);
        test::row("PNG, one bit wrong", flipped, incomplete);
        for (const char *format : { "png", "jpg", "webp", "tiff", "bmp", "ppm" }) {
            const QByteArray whole = saved(gradient(), format);
            for (const int percent : { 50, 99 })
                QTest::addRow("%s, %d %%", format, percent) << whole.left(whole.size() * percent / 100) << incomplete;
        }
        const QByteArray gif
            = QByteArray::fromHex("47494638396102000100800000000000ffffff2c00000000020001000002024c0a003b");
        test::row("GIF, within its data", gif.left(31), incomplete);
        test::row("GIF, before its data", gif.left(23), incomplete);
    }

    void badBytesGiveOneSentence()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const auto result = readImage(bytes, QStringLiteral("holiday.png"));
        QVERIFY(!result);
        QVERIFY2(result.failure().message.startsWith(QStringLiteral("holiday.png "))
                && result.failure().message.contains(reason),
            qPrintable(result.failure().message));
    }

    void checkLooksAtTheHeaderOnly()
    {
        const QString name = QStringLiteral("x");
        QVERIFY(checkImage(pngClaiming(5000, 5000), name));
        QVERIFY(!checkImage(pngClaiming(100000, 100000), name));
        QVERIFY(!checkImage("hello", name));
        ImageReadOptions options;
        options.maxPixels = 60 * 40 - 1;
        QVERIFY(!checkImage(saved(gradient(), "png"), name, options));
        options.maxPixels = 60 * 40;
        QVERIFY(checkImage(saved(gradient(), "png"), name, options));
    }

    void pictureOverQtsOwnLimitIsRead()
    {
        // 280 MiB of pixels; Qt refuses more than 256 MiB by itself.
        QImage image(20000, 3670, QImage::Format_Mono);
        image.fill(1);
        const auto result = readImage(saved(image, "png"), QStringLiteral("x"));
        QVERIFY2(result, result ? "" : qPrintable(result.failure().message));
        QCOMPARE(result->pixelSize(), image.size());
    }

    void badPathsGiveOneSentence_data()
    {
        test::columns<QString, QString>("name", "reason");
        test::row("folder", QStringLiteral("."), QStringLiteral("is a folder"));
        test::row("missing", QStringLiteral("missing.png"), QStringLiteral("could not be read"));
        test::row("pipe that nobody writes to", QStringLiteral("pipe"), QStringLiteral("is not a file"));
        test::row("device", QStringLiteral("device"), QStringLiteral("is not a file"));
        test::row("empty", QStringLiteral("empty.png"), QStringLiteral("is empty"));
        test::row("far too large", QStringLiteral("huge.png"), QStringLiteral("is too large"));
    }

    void badPathsGiveOneSentence()
    {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        const QTemporaryDir folder;
        QCOMPARE(::mkfifo(QFile::encodeName(folder.filePath(QStringLiteral("pipe"))).constData(), 0600), 0);
        QVERIFY(QFile::link(QStringLiteral("/dev/zero"), folder.filePath(QStringLiteral("device"))));
        QFile empty(folder.filePath(QStringLiteral("empty.png"))), huge(folder.filePath(QStringLiteral("huge.png")));
        QVERIFY(empty.open(QIODevice::WriteOnly) && huge.open(QIODevice::WriteOnly) && huge.resize(qint64(20) << 30));
        const QString path = folder.filePath(name);
        const auto result = readImageFile(path);
        QVERIFY(!result);
        QVERIFY2(result.failure().message.startsWith(path) && result.failure().message.contains(reason),
            qPrintable(result.failure().message));
    }

    void resolutionBecomesPixelsPerPoint_data()
    {
        test::columns<QByteArray, double>("file", "scale");
        test::row("PNG, rounded", pngOfDensity(5669), 2.0);
        test::row("PNG, cut off", pngOfDensity(4251), 1.5);
        test::row("PNG, rounded up", pngOfDensity(4252), 1.5);
        test::row("PNG, one too few", pngOfDensity(5668), 1.0);
        test::row("PNG, 96 dpi", pngOfDensity(3780), 1.0);
        test::row("PNG, a ratio only", pngOfDensity(5669, 0), 1.0);
        test::row("PNG, beyond all", pngOfDensity(0xffffffff), 1.0);
        test::row("PNG, no record", pngWith("tEXt", QByteArray("a\0b", 3)), 1.0);
        test::row("JPEG, per inch", jpegOfDensity(1, 126), 1.75);
        test::row("JPEG, per inch, one off", jpegOfDensity(1, 127), 1.0);
        test::row("JPEG, per centimetre", jpegOfDensity(2, 57), 2.0);
        test::row("JPEG, a ratio only", jpegOfDensity(0, 144), 1.0);
        const QByteArray entries = QByteArray::fromHex("011a00050000000100000026"
                                                       "012800030000000100020000");
        test::row("JPEG, EXIF", jpegWithExif(entries, 2, test::bigEndian(21600) + test::bigEndian(100)), 3.0);
        test::row(
            "JPEG, EXIF divided by zero", jpegWithExif(entries, 2, test::bigEndian(216) + test::bigEndian(0)), 1.0);
        test::row("JPEG, EXIF pointing outside", jpegWithExif(entries, 2), 1.0);
        QImage image = gradient();
        image.setDotsPerMeterX(7087);
        image.setDotsPerMeterY(7087);
        test::row("TIFF", saved(image, "tiff"), 2.5);
        test::row("BMP", saved(image, "bmp"), 2.5);
    }

    void resolutionBecomesPixelsPerPoint()
    {
        QFETCH(QByteArray, file);
        QFETCH(double, scale);
        const auto result = readImage(file, QStringLiteral("x"));
        QVERIFY2(result, result ? "" : qPrintable(result.failure().message));
        QCOMPARE(result->pointSize, QSizeF(60, 40) / scale);
        ImageReadOptions given;
        given.pixelsPerPoint = 5;
        QCOMPARE(readImage(file, QStringLiteral("x"), given)->pointSize, QSizeF(12, 8));
    }

    void turnedPictureStandsUpright()
    {
        const QByteArray orientation = QByteArray::fromHex("011200030000000100060000"); // turn clockwise
        const auto result = readImage(jpegWithExif(orientation, 1), QStringLiteral("x"));
        QVERIFY(result);
        QCOMPARE(result->pixelSize(), QSize(40, 60));
        QVERIFY(qRed(result->pixels.pixel(20, 58)) > qRed(result->pixels.pixel(20, 2)) + 200);
    }

    void everyKindOfPixelBecomesOneOfTwo_data()
    {
        QTest::addColumn<QImage::Format>("format");
        test::row("bits", QImage::Format_Mono);
        test::row("grey", QImage::Format_Grayscale8);
        test::row("grey, 16 bits", QImage::Format_Grayscale16);
        test::row("palette", QImage::Format_Indexed8);
        test::row("16 bits", QImage::Format_RGBX64);
        test::row("16 bits with alpha", QImage::Format_RGBA64);
    }

    void everyKindOfPixelBecomesOneOfTwo()
    {
        QFETCH(QImage::Format, format);
        QImage image = gradient().convertToFormat(format);
        const QColor before = image.pixelColor(30, 20);
        const auto plain = readImage(saved(image, "png"), QStringLiteral("x"));
        QVERIFY(plain);
        const auto kept = image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
        QCOMPARE(plain->pixels.format(), kept);
        QCOMPARE(plain->pixels.pixelColor(30, 20).rgb(), before.rgb());

        if (image.pixelFormat().colorModel() == QPixelFormat::Grayscale)
            return; // a PNG of grey cannot carry a profile of three channels
        image.setColorSpace(QColorSpace::SRgbLinear);
        const auto profiled = readImage(saved(image, "png"), QStringLiteral("x"));
        QVERIFY(profiled);
        QCOMPARE(profiled->pixels.format(), kept);
        const auto encoded = [](int level) { return std::pow(level / 255.0, 1 / 2.2) * 255; };
        QVERIFY(std::abs(profiled->pixels.pixelColor(30, 20).green() - encoded(before.green())) < 6);
    }
};

QTEST_GUILESS_MAIN(ImageReadingTest)
#include "ImageReadingTest.moc"
