// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Frame/FrameLayout.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

FrameLayout::FrameLayout(QSizeF size, const std::optional<FrameStyle> &frame, double pixelScale) :
    canvasSize(size),
    imageSize(size)
{
    if (!frame || size.isEmpty())
        return;
    const double scale = pixelScale > 1 && std::isfinite(pixelScale) ? pixelScale : 1.0;
    const double margin = std::sqrt(size.width() * size.height()) * frame->drawable().padding;
    double width = size.width() + 2 * margin;
    double height = size.height() + 2 * margin;
    if (const auto target = ratio(frame->aspect)) {
        if (*target <= width / height)
            height = width / *target;
        else
            width = height * *target;
    }
    // Lengths that are whole pixels but for rounding must not lose one: 333⅓ points at 3 are 1000 pixels.
    const auto snapped = [scale](double length) { return std::trunc(length * scale + 1e-6) / scale; };
    canvasSize = { snapped(width), snapped(height) };
    const QSizeF rest = (canvasSize - size) * 0.5;
    imageOrigin = { snapped(rest.width()), snapped(rest.height()) };
}

FrameLayout::Shadow FrameLayout::shadowMetrics(const FrameStyle &frame, const FrameLayout &layout)
{
    const double margin = std::min(layout.imageOrigin.x(), layout.imageOrigin.y());
    const double shadow = frame.drawable().shadow;
    const double radius = shadow * std::clamp(0.45 * margin, 6.0, 60.0);
    return { radius, 0.4 * radius, 0.15 + 0.3 * shadow };
}

} // namespace tessaly
