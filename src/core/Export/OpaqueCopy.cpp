// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/OpaqueCopy.h"

#include "core/Imaging/PixelMemory.h"

namespace tessaly {

RasterImage opaque(const RasterImage &image)
{
    if (!image.pixels.hasAlphaChannel())
        return image;
    QImage result = PixelMemory::allocate(image.pixelSize(), QImage::Format_RGB32);
    if (result.isNull())
        return image;
    for (int y = 0; y < result.height(); ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(image.pixels.constScanLine(y));
        auto *target = reinterpret_cast<QRgb *>(result.scanLine(y));
        // White adds to each premultiplied component what alpha lacks.
        for (int x = 0; x < result.width(); ++x)
            target[x] = (source[x] | 0xff000000u) + (255 - (source[x] >> 24)) * 0x010101u;
    }
    return { std::move(result), image.pointSize };
}

} // namespace tessaly
