// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/LiveGeometry.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

constexpr double farthest = 1e8; // pixels; where an int still has room

int pixelsFor(double points, double scale) { return int(std::clamp(std::round(points * scale), 1.0, farthest)); }

QPoint limited(QPoint point)
{
    const int limit = int(farthest);
    return { std::clamp(point.x(), -limit, limit), std::clamp(point.y(), -limit, limit) };
}

} // namespace

LiveGeometry::LiveGeometry(const LiveScene &scene, const LiveView &view) :
    viewSize(view.pixelSize.expandedTo({ 0, 0 })),
    scale(view.pixelsPerPoint > 0 ? std::clamp(view.pixelsPerPoint, 0.001, 1000.0) : 1)
{
    if (scene.image.isEmpty())
        return;
    layout = FrameLayout(scene.image.pointSize, scene.frame, scene.image.pixelScale());
    const auto pixels
        = [this](QSizeF points) { return QSize(pixelsFor(points.width(), scale), pixelsFor(points.height(), scale)); };
    canvas = QRect(limited(view.pixelOrigin), pixels(layout.canvasSize));
    const QPointF corner = layout.imageOrigin * scale;
    content
        = QRect(canvas.topLeft() + QPointF(std::min(corner.x(), farthest), std::min(corner.y(), farthest)).toPoint(),
            pixels(layout.imageSize));
}

/// All of `size` pixels unless they are far more than `capture`; then those around `visible`.
static QRect fitted(QSize size, QSize capture, const QRect &visible)
{
    const auto area = [](QSize pixels) { return double(pixels.width()) * pixels.height(); };
    constexpr double affordable = 16e6; // pixels
    const QRect whole(QPoint(), size);
    if (area(size) <= std::max(2 * area(capture), affordable))
        return whole;
    if (visible.isEmpty())
        return { 0, 0, 1, 1 };
    constexpr int step = 1024; // pixels
    const QPoint from(visible.left() / step * step, visible.top() / step * step);
    const QPoint to((visible.right() / step + 1) * step - 1, (visible.bottom() / step + 1) * step - 1);
    return QRect(from, to).intersected(whole);
}

QRect LiveGeometry::fittedContent(QSize capturePixels) const
{
    return fitted(content.size(), capturePixels, visibleContent().translated(-content.topLeft()));
}

QRect LiveGeometry::fittedCanvas(QSize capturePixels) const
{
    return fitted(canvas.size(), capturePixels, visibleCanvas().translated(-canvas.topLeft()));
}

bool LiveGeometry::isMoved(const LiveGeometry &other) const
{
    return layout == other.layout && viewSize == other.viewSize && scale == other.scale
        && content.topLeft() - canvas.topLeft() == other.content.topLeft() - other.canvas.topLeft();
}

} // namespace tessaly
