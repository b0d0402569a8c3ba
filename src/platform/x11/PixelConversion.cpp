// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/PixelConversion.h"

#include "core/Base/Parallel.h"

#include <bit>
#include <cstring>

namespace tessaly::PixelConversion {

void makeOpaque(uchar *pixels, size_t pixelCount)
{
    constexpr int pieces = 64;
    auto *values = reinterpret_cast<uint32_t *>(pixels);
    Parallel::forEach(pieces, Parallel::defaultThreadCount(), [=](int piece) {
        const size_t end = pixelCount * static_cast<size_t>(piece + 1) / pieces;
        for (size_t index = pixelCount * static_cast<size_t>(piece) / pieces; index < end; ++index)
            values[index] |= 0xff000000u;
    });
}

void copyOpaque(const uchar *from, uchar *to, size_t pixelCount)
{
    const auto *source = reinterpret_cast<const uint32_t *>(from);
    auto *target = reinterpret_cast<uint32_t *>(to);
    for (size_t index = 0; index < pixelCount; ++index)
        target[index] = source[index] | 0xff000000u;
}

void limitToAlpha(uchar *pixels, size_t pixelCount)
{
    auto *values = reinterpret_cast<uint32_t *>(pixels);
    for (size_t index = 0; index < pixelCount; ++index) {
        const uint32_t pixel = values[index];
        const uint32_t alpha = pixel >> 24;
        const uint32_t red = std::min(pixel >> 16 & 0xff, alpha);
        const uint32_t green = std::min(pixel >> 8 & 0xff, alpha);
        const uint32_t blue = std::min(pixel & 0xff, alpha);
        values[index] = alpha << 24 | red << 16 | green << 8 | blue;
    }
}

/// The part of `pixel` under `mask`, stretched to 0 … 255.
static int component(uint32_t pixel, uint32_t mask)
{
    const uint64_t value = (pixel & mask) >> std::countr_zero(mask);
    const uint64_t most = mask >> std::countr_zero(mask);
    return static_cast<int>((value * 255 + most / 2) / most);
}

QImage toRgb32(const uchar *pixels, qsizetype bytesPerLine, QSize pixelSize, const X11Connection::PixelLayout &layout)
{
    const bool trueColor = layout.redMask && layout.greenMask && layout.blueMask;
    if (!trueColor || (layout.bitsPerPixel != 16 && layout.bitsPerPixel != 32))
        return {};
    QImage picture(pixelSize, QImage::Format_RGB32);
    if (picture.isNull())
        return {};
    const int bytesPerPixel = layout.bitsPerPixel / 8;
    for (int y = 0; y < pixelSize.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < pixelSize.width(); ++x) {
            uint32_t pixel = 0;
            std::memcpy(&pixel, pixels + y * bytesPerLine + x * bytesPerPixel, static_cast<size_t>(bytesPerPixel));
            row[x] = qRgb(component(pixel, layout.redMask), component(pixel, layout.greenMask),
                component(pixel, layout.blueMask));
        }
    }
    return picture;
}

} // namespace tessaly::PixelConversion
