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
    const double scale = std::max(pixelScale, 1.0);
    const double margin = std::sqrt(size.width() * size.height()) * frame->padding;
    double width = size.width() + 2 * margin;
    double height = size.height() + 2 * margin;
    if (const auto target = ratio(frame->aspect)) {
        if (*target <= width / height)
            height = width / *target;
        else
            width = height * *target;
    }
    const auto snapped = [scale](double length) { return std::trunc(length * scale) / scale; };
    canvasSize = { snapped(width), snapped(height) };
    imageOrigin
        = { snapped((canvasSize.width() - size.width()) * 0.5), snapped((canvasSize.height() - size.height()) * 0.5) };
}

FrameLayout::Shadow FrameLayout::shadowMetrics(const FrameStyle &frame, const FrameLayout &layout)
{
    const double margin = std::min(layout.imageOrigin.x(), layout.imageOrigin.y());
    const double radius = frame.shadow * std::clamp(0.45 * margin, 6.0, 60.0);
    return { radius, 0.4 * radius, 0.15 + 0.3 * frame.shadow };
}

} // namespace tessaly
