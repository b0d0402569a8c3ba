// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasViewport.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

void CanvasViewport::setView(QSizeF size, double devicePixelRatio, QPointF offset)
{
    const QPointF pixels = offset * devicePixelRatio;
    m_phase = { (std::floor(pixels.x()) - pixels.x()) / devicePixelRatio,
        (std::floor(pixels.y()) - pixels.y()) / devicePixelRatio };
    if (size == m_size && devicePixelRatio == m_ratio)
        return;
    const QPointF middle = transform().toImage(center());
    m_size = size;
    m_ratio = devicePixelRatio;
    m_origin = (center() - m_phase - (m_layout.imageOrigin + middle) * m_scale) * m_ratio;
    clamp();
}

void CanvasViewport::setLayout(const FrameLayout &layout)
{
    if (layout == m_layout)
        return;
    m_origin -= (layout.imageOrigin - m_layout.imageOrigin) * pixelsPerPoint();
    m_layout = layout;
    clamp();
}

void CanvasViewport::setScale(double scale, QPointF fixed)
{
    const QPointF image = transform().toImage(fixed);
    m_scale = scale;
    m_origin = (fixed - m_phase - (m_layout.imageOrigin + image) * m_scale) * m_ratio;
    clamp();
}

bool CanvasViewport::scrollBy(QPointF delta)
{
    const QPoint before = pixelOrigin();
    m_origin += delta * m_ratio;
    clamp();
    return pixelOrigin() != before;
}

void CanvasViewport::reveal(const QRectF &imageRect)
{
    constexpr double room = 24;
    const QRectF target = transform().toView(imageRect).adjusted(-room, -room, room, room);
    const auto shift = [](double low, double high, double length) {
        if (low < 0 || high - low > length)
            return -low;
        return std::min(0.0, length - high);
    };
    scrollBy({ shift(target.left(), target.right(), m_size.width()),
        shift(target.top(), target.bottom(), m_size.height()) });
}

QSize CanvasViewport::pixelSize() const
{
    return { static_cast<int>(std::ceil((m_size.width() - m_phase.x()) * m_ratio)),
        static_cast<int>(std::ceil((m_size.height() - m_phase.y()) * m_ratio)) };
}

QPoint CanvasViewport::pixelOrigin() const
{
    return { static_cast<int>(std::floor(m_origin.x() + 0.5)), static_cast<int>(std::floor(m_origin.y() + 0.5)) };
}

CanvasTransform CanvasViewport::transform() const
{
    const QPointF corner = m_phase + QPointF(pixelOrigin()) / m_ratio;
    return { m_scale, corner + m_layout.imageOrigin * m_scale };
}

CanvasViewport::Bounds CanvasViewport::bounds(double view, double canvas) const
{
    if (canvas <= view)
        return { std::floor((view - canvas) / 2), std::floor((view - canvas) / 2) };
    const double beyond = std::min(view / 4, 96 * m_ratio);
    return { view - canvas - beyond, beyond };
}

void CanvasViewport::clamp()
{
    const QSizeF canvas = m_layout.canvasSize * pixelsPerPoint();
    const auto [left, right] = bounds(m_size.width() * m_ratio, canvas.width());
    const auto [top, bottom] = bounds(m_size.height() * m_ratio, canvas.height());
    m_origin = { std::clamp(m_origin.x(), left, right), std::clamp(m_origin.y(), top, bottom) };
}

CanvasViewport::Range CanvasViewport::range(Qt::Orientation orientation) const
{
    const bool across = orientation == Qt::Horizontal;
    const double view = (across ? m_size.width() : m_size.height()) * m_ratio;
    const double canvas = (across ? m_layout.canvasSize.width() : m_layout.canvasSize.height()) * pixelsPerPoint();
    const auto [lowest, highest] = bounds(view, canvas);
    const double position = across ? m_origin.x() : m_origin.y();
    return { static_cast<int>(highest - position), static_cast<int>(highest - lowest), static_cast<int>(view) };
}

void CanvasViewport::setScrollValue(Qt::Orientation orientation, int value)
{
    const Range now = range(orientation);
    const double delta = (now.value - value) / m_ratio;
    scrollBy(orientation == Qt::Horizontal ? QPointF(delta, 0) : QPointF(0, delta));
}

} // namespace tessaly
