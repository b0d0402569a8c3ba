// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/RasterImage.h"

#include <QColorSpace>

#include <algorithm>
#include <cmath>

namespace tessaly {

RasterImage RasterImage::fromPixels(QImage pixels, double pixelsPerPoint)
{
    const auto format = pixels.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    const QColorSpace space = pixels.colorSpace();
    if (space.isValid() && space != QColorSpace(QColorSpace::SRgb))
        pixels.convertToColorSpace(QColorSpace::SRgb);
    pixels = std::move(pixels).convertToFormat(format);
    pixels.setDevicePixelRatio(1);
    const QSizeF pointSize = QSizeF(pixels.size()) / pixelsPerPoint;
    return { std::move(pixels), pointSize };
}

double RasterImage::pixelScale() const
{
    return pointSize.width() > 0 ? std::max(pixels.width() / pointSize.width(), 1.0) : 1.0;
}

int RasterImage::dpi() const
{
    return pointSize.width() > 0 ? static_cast<int>(std::lround(pixels.width() * 72 / pointSize.width())) : 72;
}

} // namespace tessaly
