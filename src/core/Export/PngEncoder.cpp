// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/PngEncoder.h"

#include "core/Export/ZlibPixels.h"
#include "core/Imaging/ResolutionRecord.h"

#include <libdeflate.h>

#include <QtEndian>

#include <cmath>

namespace tessaly::PngEncoder {

namespace {

void appendNumber(QByteArray &target, quint32 number)
{
    const quint32 stored = qToBigEndian(number);
    target.append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

void appendChunk(QByteArray &file, const char *type, const QByteArray &content)
{
    appendNumber(file, static_cast<quint32>(content.size()));
    const qsizetype checked = file.size();
    file.append(type, 4);
    file.append(content);
    appendNumber(file, libdeflate_crc32(0, file.constData() + checked, static_cast<size_t>(file.size() - checked)));
}

QByteArray header(QSize size, PixelLayout layout)
{
    QByteArray content;
    appendNumber(content, static_cast<quint32>(size.width()));
    appendNumber(content, static_cast<quint32>(size.height()));
    content.append(char(8)); // bits per sample
    content.append(layout == PixelLayout::Rgba ? char(6) : char(2));
    return content.append(3, '\0'); // DEFLATE, the five filters, not interlaced
}

QByteArray resolution(int dpi)
{
    constexpr double inchesPerMetre = 1 / 0.0254;
    QByteArray content;
    const auto pixelsPerMetre = static_cast<quint32>(std::lround(dpi * inchesPerMetre));
    appendNumber(content, pixelsPerMetre);
    appendNumber(content, pixelsPerMetre);
    return content.append(char(1)); // per metre
}

} // namespace

Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options)
{
    const PixelLayout layout = isOpaque(image.pixels) ? PixelLayout::Rgb : PixelLayout::Rgba;
    const std::vector<QByteArray> pieces = zlibPixels(PixelRows(image.pixels, layout), options.threads);

    qsizetype bytes = 128;
    for (const QByteArray &piece : pieces)
        bytes += piece.size() + 12;
    QByteArray file;
    file.reserve(bytes);
    file.append("\x89PNG\r\n\x1a\n", 8);
    appendChunk(file, "IHDR", header(image.pixelSize(), layout));
    appendChunk(file, "sRGB", QByteArray(1, '\0')); // perceptual
    if (const auto dpi = ResolutionRecord::dpiToRecord(image))
        appendChunk(file, "pHYs", resolution(*dpi));
    for (const QByteArray &piece : pieces)
        appendChunk(file, "IDAT", piece);
    appendChunk(file, "IEND", {});
    return file;
}

} // namespace tessaly::PngEncoder
