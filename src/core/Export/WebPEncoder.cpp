// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/WebPEncoder.h"

#include "core/Export/PixelRows.h"

#include <QCoreApplication>
#include <QtEndian>

#include <webp/encode.h>
#include <webp/mux.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

namespace tessaly::WebPEncoder {

namespace {

struct Freed {
    void operator()(uint8_t *bytes) const { WebPFree(bytes); }
};

struct MuxDeleted {
    void operator()(WebPMux *mux) const { WebPMuxDelete(mux); }
};

constexpr double unitsPerDot = 1000;

bool isRecordable(double dpi)
{
    return dpi > 0 && std::abs(dpi - 72) > 0.5 && dpi * unitsPerDot < std::numeric_limits<quint32>::max();
}

WebPData dataOf(const QByteArray &bytes)
{
    return { reinterpret_cast<const uint8_t *>(bytes.constData()), static_cast<size_t>(bytes.size()) };
}

template <class Integer>
void append(QByteArray &target, Integer value)
{
    const Integer stored = qToLittleEndian(value);
    target.append(reinterpret_cast<const char *>(&stored), sizeof stored);
}

/// An entry of a TIFF directory holding one value, or the offset of one.
void appendEntry(QByteArray &target, quint16 tag, quint16 type, quint32 value)
{
    append(target, tag);
    append(target, type);
    append<quint32>(target, 1);
    append(target, value);
}

} // namespace

QByteArray exifResolution(double dpi)
{
    constexpr quint16 shortType = 3, rationalType = 5, inches = 2;
    constexpr quint32 directoryOffset = 8, xOffset = 50, yOffset = 58;
    QByteArray record("II");
    append<quint16>(record, 42);
    append(record, directoryOffset);
    append<quint16>(record, 3);
    appendEntry(record, 0x011a, rationalType, xOffset);
    appendEntry(record, 0x011b, rationalType, yOffset);
    appendEntry(record, 0x0128, shortType, inches);
    append<quint32>(record, 0); // no further directory
    for (int axis = 0; axis < 2; ++axis) {
        append(record, static_cast<quint32>(std::llround(dpi * unitsPerDot)));
        append(record, static_cast<quint32>(unitsPerDot));
    }
    return record;
}

QByteArray withResolution(const QByteArray &file, double dpi)
{
    if (!isRecordable(dpi))
        return file;
    const std::unique_ptr<WebPMux, MuxDeleted> mux(WebPMuxNew());
    const WebPData image = dataOf(file);
    const QByteArray record = exifResolution(dpi);
    const WebPData exif = dataOf(record);
    constexpr int copied = 1;
    WebPData assembled = {};
    if (!mux || WebPMuxSetImage(mux.get(), &image, copied) != WEBP_MUX_OK
        || WebPMuxSetChunk(mux.get(), "EXIF", &exif, copied) != WEBP_MUX_OK
        || WebPMuxAssemble(mux.get(), &assembled) != WEBP_MUX_OK)
        return file;
    QByteArray result(reinterpret_cast<const char *>(assembled.bytes), static_cast<qsizetype>(assembled.size));
    WebPDataClear(&assembled);
    return result;
}

Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options)
{
    const int width = image.pixels.width(), height = image.pixels.height(), stride = width * 4;
    const PixelRows rows(image.pixels, PixelLayout::Rgba);
    std::vector<uint8_t> samples(static_cast<size_t>(stride) * static_cast<size_t>(height));
    for (int row = 0; row < height; ++row)
        rows.readSamples(row, samples.data() + static_cast<size_t>(row) * static_cast<size_t>(stride));

    uint8_t *bytes = nullptr;
    size_t size = 0;
    if (options.quality >= 1) {
        size = WebPEncodeLosslessRGBA(samples.data(), width, height, stride, &bytes);
    } else {
        const auto quality = options.quality > 0 ? static_cast<float>(options.quality * 100) : 0.0f;
        size = WebPEncodeRGBA(samples.data(), width, height, stride, quality, &bytes);
    }
    const std::unique_ptr<uint8_t, Freed> freed(bytes);
    if (size == 0 || !bytes)
        return Failure { QCoreApplication::translate(
            "WebPEncoder", "There is not enough memory to write this picture as WebP.") };
    const QByteArray file(reinterpret_cast<const char *>(bytes), static_cast<qsizetype>(size));
    const double pointWidth = image.pointSize.width();
    return withResolution(file, pointWidth > 0 ? width * 72 / pointWidth : 72);
}

} // namespace tessaly::WebPEncoder
