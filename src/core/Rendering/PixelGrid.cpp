// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/PixelGrid.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

double PixelGrid::scale() const { return std::max(std::sqrt(std::abs(toPixels.determinant())), 1e-6); }

QRect outwardRect(const QRectF &pixels)
{
    constexpr double noise = 1e-6;
    static constexpr double farthest = 1e8; // where an int still has room
    const auto edge = [](double value) { return static_cast<int>(std::clamp(value, -farthest, farthest)); };
    const int left = edge(std::floor(pixels.left() + noise)), top = edge(std::floor(pixels.top() + noise));
    const int right = edge(std::ceil(pixels.right() - noise)), bottom = edge(std::ceil(pixels.bottom() - noise));
    return { left, top, right - left, bottom - top };
}

QRect PixelGrid::touchedPixels(const QRectF &points) const { return outwardRect(toPixels.mapRect(points)); }

QRectF PixelGrid::grownToPixels(const QRectF &points) const
{
    if (!isUpright() || !toPixels.isInvertible())
        return points;
    return toPixels.inverted().mapRect(QRectF(touchedPixels(points)));
}

} // namespace tessaly
