// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/PngRows.h"

#include "core/Imaging/WideVectors.h"

#include <cstring>

namespace tessaly::PngRows {

namespace {

enum Filter { None, Sub, Up, Average, Paeth };

// The samples of one pixel side by side, in the first bytes of a register. A pixel depends on the one to its left, so a
// row offers no wider work, and what counts is how few steps lead from one pixel to the next.
using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Lanes = std::int16_t __attribute__((vector_size(16)));
using Words = std::uint32_t __attribute__((vector_size(16)));

Bytes load(const std::uint8_t *from)
{
    std::uint32_t word = 0;
    std::memcpy(&word, from, sizeof word);
    return reinterpret_cast<Bytes>(Words { word });
}

template <int bytesPerPixel>
void store(Bytes bytes, std::uint8_t *to)
{
    const std::uint32_t word = reinterpret_cast<Words>(bytes)[0];
    std::memcpy(to, &word, bytesPerPixel);
}

Lanes widened(Bytes bytes)
{
    return reinterpret_cast<Lanes>(
        __builtin_shufflevector(bytes, Bytes {}, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23));
}

Bytes narrowed(Lanes lanes)
{
    return __builtin_shufflevector(
        reinterpret_cast<Bytes>(lanes), Bytes {}, 0, 2, 4, 6, 8, 10, 12, 14, 16, 16, 16, 16, 16, 16, 16, 16);
}

Bytes average(Bytes one, Bytes other) { return (one & other) + (((one ^ other) & 0xfe) >> 1); }

Lanes magnitude(Lanes lanes) { return lanes > -lanes ? lanes : -lanes; }

/// The one of the three neighbours that is nearest to left + above - corner.
Lanes nearest(Lanes left, Lanes above, Lanes corner)
{
    const Lanes fromLeft = above - corner, fromAbove = left - corner;
    const Lanes farLeft = magnitude(fromLeft), farAbove = magnitude(fromAbove);
    const Lanes farCorner = magnitude(fromLeft + fromAbove);
    const Lanes other = farAbove <= farCorner ? above : corner;
    return (farLeft <= farAbove) & (farLeft <= farCorner) ? left : other;
}

template <int bytesPerPixel>
void addLeft(std::uint8_t *row, int count)
{
    Bytes left {};
    for (int at = 0; at < count; at += bytesPerPixel) {
        left += load(row + at);
        store<bytesPerPixel>(left, row + at);
    }
}

template <int bytesPerPixel>
void addAverage(std::uint8_t *row, const std::uint8_t *above, int count)
{
    Bytes left {};
    for (int at = 0; at < count; at += bytesPerPixel) {
        left = load(row + at) + average(left, load(above + at));
        store<bytesPerPixel>(left, row + at);
    }
}

template <int bytesPerPixel>
void addNearest(std::uint8_t *row, const std::uint8_t *above, int count)
{
    Lanes left {}, corner {};
    for (int at = 0; at < count; at += bytesPerPixel) {
        const Lanes up = widened(load(above + at));
        left = (widened(load(row + at)) + nearest(left, up, corner)) & 0xff;
        store<bytesPerPixel>(narrowed(left), row + at);
        corner = up;
    }
}

TESSALY_WIDE_VECTORS void addAbove(std::uint8_t *row, const std::uint8_t *above, int count)
{
    for (int index = 0; index < count; ++index)
        row[index] = std::uint8_t(row[index] + above[index]);
}

template <int bytesPerPixel>
bool unfilterPixels(int filter, std::uint8_t *row, const std::uint8_t *above, int count)
{
    switch (filter) {
    case None:
        return true;
    case Sub:
        addLeft<bytesPerPixel>(row, count);
        return true;
    case Up:
        addAbove(row, above, count);
        return true;
    case Average:
        addAverage<bytesPerPixel>(row, above, count);
        return true;
    case Paeth:
        addNearest<bytesPerPixel>(row, above, count);
        return true;
    default:
        return false;
    }
}

} // namespace

bool unfilter(int filter, std::uint8_t *row, const std::uint8_t *above, int count, int bytesPerPixel)
{
    switch (bytesPerPixel) {
    case 1:
        return unfilterPixels<1>(filter, row, above, count);
    case 2:
        return unfilterPixels<2>(filter, row, above, count);
    case 3:
        return unfilterPixels<3>(filter, row, above, count);
    default:
        return unfilterPixels<4>(filter, row, above, count);
    }
}

TESSALY_WIDE_VECTORS void fromGrey(const std::uint8_t *row, QRgb *target, int width)
{
    for (int x = 0; x < width; ++x)
        target[x] = 0xff000000u | row[x] * 0x010101u;
}

void fromGreyAlpha(const std::uint8_t *row, QRgb *target, int width)
{
    for (int x = 0; x < width; ++x)
        target[x] = qPremultiply(row[2 * x] * 0x010101u | QRgb(row[2 * x + 1]) << 24);
}

TESSALY_WIDE_VECTORS void fromRgb(const std::uint8_t *row, QRgb *target, int width)
{
    for (int x = 0; x < width; ++x)
        target[x] = 0xff000000u | QRgb(row[3 * x]) << 16 | QRgb(row[3 * x + 1]) << 8 | row[3 * x + 2];
}

/// Whether every pixel is opaque, and with it the pixels as if they were.
TESSALY_WIDE_VECTORS static bool fromOpaqueRgba(const std::uint8_t *row, QRgb *target, int width)
{
    unsigned all = 0xff;
    for (int x = 0; x < width; ++x) {
        all &= row[4 * x + 3];
        target[x] = QRgb(row[4 * x + 3]) << 24 | QRgb(row[4 * x]) << 16 | QRgb(row[4 * x + 1]) << 8 | row[4 * x + 2];
    }
    return all == 0xff;
}

void fromRgba(const std::uint8_t *row, QRgb *target, int width)
{
    if (fromOpaqueRgba(row, target, width))
        return;
    for (int x = 0; x < width; ++x)
        target[x] = qPremultiply(target[x]);
}

} // namespace tessaly::PngRows
