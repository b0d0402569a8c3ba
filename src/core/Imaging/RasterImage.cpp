// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/RasterImage.h"

#include <QColorSpace>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessaly {

RasterImage RasterImage::fromPixels(QImage pixels, double pixelsPerPoint)
{
    const auto format = pixels.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    const QColorSpace space = pixels.colorSpace();
    if (space.isValid() && space != QColorSpace(QColorSpace::SRgb))
        pixels.convertToColorSpace(QColorSpace::SRgb);
    pixels = std::move(pixels).convertToFormat(format);
    pixels.setDevicePixelRatio(1);
    const bool usable = std::isfinite(pixelsPerPoint) && pixelsPerPoint > 0;
    const QSizeF pointSize = QSizeF(pixels.size()) / (usable ? pixelsPerPoint : 1);
    return { std::move(pixels), pointSize };
}

double RasterImage::pixelScale() const
{
    return pointSize.width() > 0 ? std::max(pixels.width() / pointSize.width(), 1.0) : 1.0;
}

int RasterImage::dpi() const
{
    constexpr double most = std::numeric_limits<int>::max();
    return pointSize.width() > 0 ? qRound(std::min(pixels.width() * 72 / pointSize.width(), most)) : 72;
}

} // namespace tessaly
