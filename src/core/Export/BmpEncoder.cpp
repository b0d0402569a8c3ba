// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/BmpEncoder.h"

#include "core/Export/OpaqueCopy.h"
#include "core/Imaging/ResolutionRecord.h"

#include <QCoreApplication>
#include <QtEndian>

#include <cmath>
#include <limits>

namespace tessaly::BmpEncoder {

namespace {

template <class Integer>
void append(QByteArray &target, Integer value)
{
    const Integer stored = qToLittleEndian(value);
    target.append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

constexpr quint32 fileHeaderBytes = 14;
constexpr quint32 headerBytes = 40;

QByteArray headers(const RasterImage &image, quint32 pixelBytes)
{
    const auto pixelsPerMetre
        = static_cast<qint32>(std::lround(ResolutionRecord::dpiToRecord(image).value_or(72) / 0.0254));
    QByteArray result("BM");
    append(result, fileHeaderBytes + headerBytes + pixelBytes);
    append<quint32>(result, 0);
    append(result, fileHeaderBytes + headerBytes);
    append(result, headerBytes);
    append<qint32>(result, image.pixels.width());
    append<qint32>(result, image.pixels.height()); // positive: the bottom row comes first
    append<quint16>(result, 1);
    append<quint16>(result, 24);
    append<quint32>(result, 0); // not compressed
    append(result, pixelBytes);
    append(result, pixelsPerMetre);
    append(result, pixelsPerMetre);
    append<quint32>(result, 0); // no palette
    append<quint32>(result, 0);
    return result;
}

} // namespace

Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &)
{
    const QImage pixels = opaque(image).pixels;
    const qint64 rowBytes = (qint64(pixels.width()) * 3 + 3) / 4 * 4;
    const qint64 pixelBytes = rowBytes * pixels.height();
    if (pixelBytes > std::numeric_limits<qint32>::max())
        return Failure { QCoreApplication::translate(
            "BmpEncoder", "A BMP file can hold 2 GiB of pixels, and this picture has more.") };
    QByteArray file = headers(image, static_cast<quint32>(pixelBytes));
    const qsizetype start = file.size();
    file.resize(start + pixelBytes);
    auto *target = reinterpret_cast<uchar *>(file.data()) + start;
    for (int y = pixels.height() - 1; y >= 0; --y, target += rowBytes) {
        const auto *row = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
        uchar *sample = target;
        for (int x = 0; x < pixels.width(); ++x) {
            *sample++ = static_cast<uchar>(qBlue(row[x]));
            *sample++ = static_cast<uchar>(qGreen(row[x]));
            *sample++ = static_cast<uchar>(qRed(row[x]));
        }
        std::fill(sample, target + rowBytes, uchar(0));
    }
    return file;
}

} // namespace tessaly::BmpEncoder
