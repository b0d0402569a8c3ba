// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ImageEncoder.h"
#include "core/Export/OpaqueCopy.h"
#include "tests/support/Rows.h"
#include "tests/support/SamplePictures.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

using namespace tessaly;
using test::Transparency;

namespace {

/// What a program writes to its standard output; empty when it fails or is not there.
QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.closeWriteChannel();
    const bool done
        = process.waitForFinished() && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    return done ? process.readAllStandardOutput() : QByteArray();
}

} // namespace

/// What others make of our files.
class ForeignReadersTest : public QObject {
    Q_OBJECT

    QTemporaryDir m_folder;

    QString written(const RasterImage &image, ExportFormat format, const EncodeOptions &options = {})
    {
        const QString path = m_folder.filePath(QStringLiteral("picture.") + extension(format));
        const auto bytes = encodeImage(image, format, options);
        QFile file(path);
        if (!bytes || !file.open(QIODevice::WriteOnly) || file.write(*bytes) != bytes->size())
            return {};
        return path;
    }

private Q_SLOTS:
    void imageMagickSeesTheSamePixels_data()
    {
        test::columns<ExportFormat, QImage>("format", "pixels");
        for (const ExportFormat format :
            { ExportFormat::Png, ExportFormat::Tiff, ExportFormat::Webp, ExportFormat::Gif, ExportFormat::Bmp }) {
            for (const Transparency transparency : { Transparency::None, Transparency::Binary, Transparency::Soft }) {
                const bool held = format != ExportFormat::Gif || transparency != Transparency::Soft;
                for (const QSize size : { QSize(1, 1), QSize(7, 5), QSize(601, 403) }) {
                    if (held)
                        QTest::addRow(
                            "%s %d, transparency %d", rawValue(format).data(), size.width(), int(transparency))
                            << format << test::samplePicture(size, transparency);
                }
            }
        }
    }

    void imageMagickSeesTheSamePixels()
    {
        QFETCH(ExportFormat, format);
        QFETCH(QImage, pixels);
        const RasterImage image = RasterImage::fromPixels(pixels);
        const QString path = written(image, format, { .quality = 1 });
        const QByteArray seen = outputOf(QStringLiteral("convert"),
            { path, QStringLiteral("-depth"), QStringLiteral("8"), QStringLiteral("rgba:-") });
        const QImage expected = format == ExportFormat::Bmp ? opaque(image).pixels : pixels;
        QCOMPARE(seen.size(), expected.sizeInBytes());
        const auto *samples = reinterpret_cast<const uchar *>(seen.constData());
        QCOMPARE(QImage(samples, expected.width(), expected.height(), QImage::Format_RGBA8888)
                     .convertToFormat(expected.format()),
            expected);
    }

    void everyReaderKnowsTheFile_data()
    {
        // parts: of what it prints
        test::columns<ExportFormat, QString, QStringList, QStringList>("format", "program", "options", "parts");
        const QString identify = QStringLiteral("identify");
        const QStringList verbose { QStringLiteral("-verbose") };
        test::row("PNG", ExportFormat::Png, identify, verbose,
            QStringList { "64x30", "Resolution: 56.69x56.69", "Units: PixelsPerCentimeter",
                "png:IHDR.color-type-orig: 6", "Rendering intent: Perceptual" });
        test::row("JPEG", ExportFormat::Jpeg, identify, verbose,
            QStringList { "64x30", "Resolution: 144x144", "Units: PixelsPerInch", "Quality: 69",
                "sampling-factor: 1x1,1x1,1x1" });
        test::row("BMP", ExportFormat::Bmp, identify, verbose, QStringList { "64x30", "Resolution: 56.69x56.69" });
        test::row("WebP", ExportFormat::Webp, QStringLiteral("webpmux"), QStringList { "-info" },
            QStringList { "64 x 30", "EXIF metadata", "Size of the EXIF metadata: 66", "transparency" });
        test::row("TIFF", ExportFormat::Tiff, QStringLiteral("tiffinfo"), QStringList { "-D" },
            QStringList { "Image Width: 64 Image Length: 30", "Resolution: 144, 144 pixels/inch", "AdobeDeflate",
                "unassoc-alpha", "horizontal differencing" });
        test::row("GIF", ExportFormat::Gif, QStringLiteral("giftext"), QStringList {},
            QStringList { "Width = 64, Height = 30", "Transparency on: yes" });
        test::row("PDF", ExportFormat::Pdf, QStringLiteral("pdfinfo"), QStringList {},
            QStringList { "Pages:           1", "Page size:       32 x 15 pts" });
        test::row("PDF's picture", ExportFormat::Pdf, QStringLiteral("pdfimages"), QStringList { "-list" },
            QStringList { "image      64    30  rgb", "smask      64    30  gray", "144   144" });
    }

    void everyReaderKnowsTheFile()
    {
        QFETCH(ExportFormat, format);
        QFETCH(QString, program);
        QFETCH(QStringList, options);
        QFETCH(QStringList, parts);
        const RasterImage image = RasterImage::fromPixels(test::samplePicture({ 64, 30 }, Transparency::Binary), 2);
        const QString path = written(image, format);
        const QString output = QString::fromUtf8(outputOf(program, options + QStringList { path }));
        for (const QString &part : parts)
            QVERIFY2(output.contains(part), qPrintable(part + QStringLiteral(" is missing in:\n") + output));
    }

    void pdfKeepsPixelsAndFractionalPages()
    {
        const QImage pixels = test::samplePicture({ 701, 333 }, Transparency::Soft);
        const QString path = written(RasterImage::fromPixels(pixels, 1.75), ExportFormat::Pdf);
        QVERIFY(outputOf(QStringLiteral("pdfinfo"), { path }).contains("400.571 x 190.286 pts"));
        outputOf(
            QStringLiteral("pdfimages"), { QStringLiteral("-png"), path, m_folder.filePath(QStringLiteral("part")) });
        const QImage colors(m_folder.filePath(QStringLiteral("part-000.png")));
        const QImage mask(m_folder.filePath(QStringLiteral("part-001.png")));
        QCOMPARE(colors.size(), pixels.size());
        QCOMPARE(mask.size(), pixels.size());
        QImage seen = colors.convertToFormat(QImage::Format_ARGB32);
        seen.setAlphaChannel(mask);
        QCOMPARE(seen.convertToFormat(pixels.format()), pixels);
    }
};

QTEST_GUILESS_MAIN(ForeignReadersTest)
#include "ForeignReadersTest.moc"
