// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ImageReading.h"

#include "core/Imaging/PictureEnd.h"
#include "core/Imaging/PngDecoder.h"
#include "core/Imaging/ResolutionRecord.h"

#include <QBuffer>
#include <QColorSpace>
#include <QCoreApplication>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {

namespace {

// The formats of pixels. Those of drawings need fonts and have no pixels of their own.
constexpr std::array<QByteArrayView, 14> knownFormats { "png", "jpeg", "webp", "tiff", "gif", "bmp", "ppm", "pgm",
    "pbm", "ico", "tga", "xpm", "xbm", "wbmp" };

Failure damaged(const QString &name)
{
    return { QCoreApplication::translate("ImageReading", "%1 is damaged or incomplete.").arg(name) };
}

bool isKnown(const QByteArray &format)
{
    return std::ranges::find(knownFormats, QByteArrayView(format)) != knownFormats.end();
}

struct Header {
    QByteArray format;
    QSize pixelSize; ///< empty for a format that is not known
};

/// What the file says of itself. Qt loads the plug-ins of all formats to find out, which takes longer than to decode a
/// PNG of a whole screen; so those are known without it.
Header headerOf(QImageReader &reader, const QByteArray &bytes)
{
    constexpr qsizetype sizeOffset = 16; // after the signature, a length and "IHDR"
    if (!bytes.startsWith("\x89PNG\r\n\x1a\n") || bytes.size() < sizeOffset + 8) {
        const QByteArray format = reader.format();
        return { format, isKnown(format) ? reader.size() : QSize() };
    }
    reader.setAutoDetectImageFormat(false);
    reader.setFormat("png");
    const auto number = [&](qsizetype offset) { return qFromBigEndian<qint32>(bytes.constData() + offset); };
    return { "png", QSize(number(sizeOffset), number(sizeOffset + 4)) };
}

/// Whether what `reader` reads from is all there and of an allowed size.
Outcome checkHeader(QImageReader &reader, const QByteArray &bytes, const QString &name, const ImageReadOptions &options)
{
    if (bytes.isEmpty())
        return Failure { QCoreApplication::translate("ImageReading", "%1 is empty.").arg(name) };
    const auto [format, size] = headerOf(reader, bytes);
    if (!isKnown(format))
        return Failure {
            QCoreApplication::translate("ImageReading", "%1 is not a picture of a format that can be read.").arg(name)
        };
    if (!hasWholePicture(bytes))
        return damaged(name);
    if (size.isEmpty())
        return damaged(name);
    if (qint64(size.width()) * size.height() > options.maxPixels) {
        return Failure { QCoreApplication::translate(
            "ImageReading", "%1 has %2 × %3 pixels, more than the %4 million that are allowed.")
                             .arg(name, QString::number(size.width()), QString::number(size.height()),
                                 QString::number(options.maxPixels / 1'000'000)) };
    }
    return Done {};
}

/// In sRGB, and without the note that it is: pictures with the same pixels shall be equal.
QImage inSrgb(QImage pixels)
{
    const QColorSpace space = pixels.colorSpace();
    if (space.isValid() && space != QColorSpace(QColorSpace::SRgb)) {
        // Grey and indexed pixels cannot be converted in place by a profile of three channels.
        if (pixels.depth() < 24)
            pixels.convertTo(pixels.hasAlphaChannel() ? QImage::Format_ARGB32 : QImage::Format_RGB32);
        pixels.convertToColorSpace(QColorSpace::SRgb);
    }
    pixels.setColorSpace({});
    return pixels;
}

/// Closes a file descriptor at the end of the scope.
class OpenFile {
public:
    // Without O_NONBLOCK opening a pipe would wait for its other end.
    explicit OpenFile(const QString &path) :
        m_descriptor(::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC))
    {
    }
    ~OpenFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Q_DISABLE_COPY_MOVE(OpenFile)

    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

Failure unreadable(const QString &path, int error)
{
    return { QCoreApplication::translate("ImageReading", "%1 could not be read: %2.")
                 .arg(path, QString::fromLocal8Bit(std::strerror(error))) };
}

/// More than this no picture of `maxPixels` takes, at 8 bytes a pixel and with much beside them.
qint64 maxFileBytes(const ImageReadOptions &options) { return options.maxPixels * 8 + 64 * 1024 * 1024; }

Result<QByteArray> readWholeFile(const QString &path, const ImageReadOptions &options)
{
    const OpenFile file(path);
    struct stat status = {};
    if (file.descriptor() < 0 || ::fstat(file.descriptor(), &status) != 0)
        return unreadable(path, errno);
    if (S_ISDIR(status.st_mode))
        return Failure { QCoreApplication::translate("ImageReading", "%1 is a folder and not a picture.").arg(path) };
    if (!S_ISREG(status.st_mode))
        return Failure {
            QCoreApplication::translate("ImageReading", "%1 is not a file that holds a picture.").arg(path)
        };
    if (status.st_size > maxFileBytes(options))
        return Failure { QCoreApplication::translate("ImageReading", "%1 is too large for a picture.").arg(path) };
    QFile stream;
    if (!stream.open(file.descriptor(), QIODevice::ReadOnly))
        return Failure {
            QCoreApplication::translate("ImageReading", "%1 could not be read: %2.").arg(path, stream.errorString())
        };
    QByteArray bytes = stream.read(status.st_size);
    if (stream.error() != QFileDevice::NoError)
        return Failure {
            QCoreApplication::translate("ImageReading", "%1 could not be read: %2.").arg(path, stream.errorString())
        };
    return bytes;
}

} // namespace

Result<RasterImage> readImage(const QByteArray &bytes, const QString &name, const ImageReadOptions &options)
{
    const auto pixelsPerPoint
        = [&] { return options.pixelsPerPoint.value_or(ResolutionRecord::pixelsPerPoint(bytes)); };
    if (QImage pixels = decodePng(bytes, options.maxPixels); !pixels.isNull())
        return RasterImage::fromPixels(std::move(pixels), pixelsPerPoint());
    if (!options.withPlugIns)
        return Failure {
            QCoreApplication::translate("ImageReading", "%1 is not a picture of a format that can be read.").arg(name)
        };

    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    if (const Outcome header = checkHeader(reader, bytes, name, options); !header)
        return header.failure();

    // The size is known to be allowed. Qt's own limit, 256 MiB unless set, counts up to 8 bytes a pixel.
    QImageReader::setAllocationLimit(
        static_cast<int>(std::min<qint64>(options.maxPixels * 8 / (1024 * 1024) + 1, 1 << 30)));
    reader.setAutoTransform(true);
    QImage pixels = reader.read();
    if (pixels.isNull())
        return damaged(name);
    return RasterImage::fromPixels(inSrgb(std::move(pixels)), pixelsPerPoint());
}

Outcome checkImage(const QByteArray &bytes, const QString &name, const ImageReadOptions &options)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    return checkHeader(reader, bytes, name, options);
}

Result<RasterImage> readImageFile(const QString &path, const ImageReadOptions &options)
{
    const Result<QByteArray> bytes = readWholeFile(path, options);
    if (!bytes)
        return bytes.failure();
    return readImage(*bytes, path, options);
}

} // namespace tessaly
