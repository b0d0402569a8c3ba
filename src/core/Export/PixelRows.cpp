// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/PixelRows.h"

#include "core/Export/RowFilters.h"

#include <QtEndian>

#include <algorithm>
#include <cstring>
#include <vector>

namespace tessaly {

namespace {

const QRgb *pixelsOf(const QImage &image, int row) { return reinterpret_cast<const QRgb *>(image.constScanLine(row)); }

/// 0x00BBGGRR: red is the lowest byte.
uint32_t redFirst(QRgb pixel) { return qbswap(pixel) >> 8; }

void readRgb(const QRgb *pixels, int count, uint8_t *samples)
{
    int x = 0;
    for (; x + 4 <= count; x += 4, samples += 12) {
        const uint32_t a = redFirst(pixels[x]), b = redFirst(pixels[x + 1]);
        const uint32_t c = redFirst(pixels[x + 2]), d = redFirst(pixels[x + 3]);
        qToLittleEndian(a | b << 24, samples);
        qToLittleEndian(b >> 8 | c << 16, samples + 4);
        qToLittleEndian(c >> 16 | d << 8, samples + 8);
    }
    for (; x < count; ++x, samples += 3) {
        samples[0] = static_cast<uint8_t>(qRed(pixels[x]));
        samples[1] = static_cast<uint8_t>(qGreen(pixels[x]));
        samples[2] = static_cast<uint8_t>(qBlue(pixels[x]));
    }
}

void readTranslucentRgb(const QRgb *pixels, int count, uint8_t *samples)
{
    for (int x = 0; x < count; ++x, samples += 3) {
        const QRgb pixel = qUnpremultiply(pixels[x]);
        readRgb(&pixel, 1, samples);
    }
}

void readRgba(const QRgb *pixels, int count, uint8_t *samples)
{
    for (int x = 0; x < count; ++x) {
        const QRgb pixel = qUnpremultiply(pixels[x]);
        qToLittleEndian(redFirst(pixel) | static_cast<uint32_t>(qAlpha(pixel)) << 24, samples + 4 * x);
    }
}

void readAlpha(const QRgb *pixels, int count, uint8_t *samples)
{
    for (int x = 0; x < count; ++x)
        samples[x] = static_cast<uint8_t>(qAlpha(pixels[x]));
}

} // namespace

bool isOpaque(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return true;
    for (int row = 0; row < image.height(); ++row) {
        const QRgb *pixels = pixelsOf(image, row);
        QRgb common = 0xff000000u;
        for (int x = 0; x < image.width(); ++x)
            common &= pixels[x];
        if (common != 0xff000000u)
            return false;
    }
    return true;
}

PixelRows::PixelRows(QImage image, PixelLayout layout) :
    m_image(std::move(image)),
    m_layout(layout),
    m_bytesPerPixel(static_cast<int>(layout)),
    m_sampleBytes(m_image.width() * m_bytesPerPixel)
{
}

void PixelRows::readSamples(int row, uint8_t *samples) const
{
    const QRgb *pixels = pixelsOf(m_image, row);
    switch (m_layout) {
    case PixelLayout::Rgb:
        return (m_image.hasAlphaChannel() ? readTranslucentRgb : readRgb)(pixels, m_image.width(), samples);
    case PixelLayout::Rgba:
        return readRgba(pixels, m_image.width(), samples);
    case PixelLayout::Alpha:
        return readAlpha(pixels, m_image.width(), samples);
    }
}

bool PixelRows::isLikeRowAbove(int row) const
{
    const auto bytes = static_cast<size_t>(m_image.width()) * sizeof(QRgb);
    return row > 0 && std::memcmp(pixelsOf(m_image, row), pixelsOf(m_image, row - 1), bytes) == 0;
}

/// Whether four fifths of the pixels equal the one to the left or above. Such rows, interfaces and text, repeat
/// literally, and any filter would hide that.
bool PixelRows::isFlat(int first, int end) const
{
    qint64 repeated = 0, compared = 0;
    for (int row = std::max(first, 1); row < end; ++row) {
        repeated += RowFilters::repeatedPixels(pixelsOf(m_image, row), pixelsOf(m_image, row - 1), m_image.width());
        compared += m_image.width();
    }
    return repeated * 5 >= compared * 4;
}

void PixelRows::write(int first, int end, uint8_t *target) const
{
    std::vector<uint8_t> samples(static_cast<size_t>(m_sampleBytes)), above(samples.size()), spare(samples.size());
    if (first > 0)
        readSamples(first - 1, above.data());
    const bool flat = isFlat(first, end);
    for (int row = first; row < end; ++row, target += bytesPerRow()) {
        const bool sameAsAbove = isLikeRowAbove(row);
        if (sameAsAbove)
            samples = above;
        else
            readSamples(row, samples.data());

        const RowFilters::Row source { samples.data(), above.data(), m_sampleBytes, m_bytesPerPixel };
        if (flat)
            RowFilters::writeUnfiltered(source, target);
        else if (sameAsAbove)
            RowFilters::writeSameAsAbove(source, target);
        else
            RowFilters::writeSmallest(source, spare.data(), target);
        samples.swap(above);
    }
}

} // namespace tessaly
