// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/LiveBase.h"

#include "core/Rendering/PictureScaling.h"

namespace tessaly {

void LiveBase::update(const RasterImage &image, const LiveGeometry &geometry, int threads)
{
    const bool isSame
        = image.pixels.cacheKey() == m_capture.cacheKey() && geometry.content.size() == m_geometry.content.size();
    const QPoint move = geometry.content.topLeft() - m_geometry.content.topLeft();
    m_capture = image.pixels;
    m_geometry = geometry;
    const QRect visible = geometry.visibleContent();
    if (m_capture.size() == geometry.content.size() || visible.isEmpty()) {
        m_scaled = {};
    } else if (isSame && !m_scaled.image().isNull()) {
        if (visible != m_scaled.area() || !move.isNull())
            scale(m_scaled.scroll(move, visible), threads);
    } else {
        m_scaled.reset(visible, m_capture.format());
        scale(visible, threads);
    }
}

void LiveBase::scale(const QRegion &region, int threads)
{
    if (m_scaled.image().isNull())
        return;
    const PictureScaling scaling(m_capture, m_geometry.content.size());
    for (const QRect &rect : region) {
        scaling.paint(rect.translated(-m_geometry.content.topLeft()), m_scaled.image(),
            rect.topLeft() - m_scaled.origin(), threads);
    }
}

void LiveBase::copy(const QRect &area, QImage &target, QPoint position) const
{
    const bool scaled = !m_scaled.image().isNull();
    const QImage &source = scaled ? m_scaled.image() : m_capture;
    const QPoint origin = scaled ? m_scaled.origin() : m_geometry.content.topLeft();
    const QRect inside = area.translated(-origin).intersected(source.rect());
    if (!inside.isEmpty())
        copyPixels(source, inside, target, position + inside.topLeft() - (area.topLeft() - origin));
}

} // namespace tessaly
