// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/LoupePainter.h"

#include "core/Imaging/ContinuousCorners.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Rendering/Strokes.h"

#include <QPainter>

#include <algorithm>

namespace tessaly {

LoupePainter::LoupePainter(const Annotation &mark, const PixelGrid &grid, const QRectF &canvas, const QRect &shown) :
    m_mark(mark),
    m_grid(grid.isUpright() ? grid : PixelGrid::scaledBy(grid.scale()))
{
    const QPointF centre = mark.rect().center();
    m_magnified = QTransform::fromTranslate(-centre.x(), -centre.y())
        * QTransform::fromScale(mark.magnification, mark.magnification)
        * QTransform::fromTranslate(centre.x(), centre.y());
    m_seen = m_magnified.inverted().mapRect(mark.rect()).intersected(canvas);
    // One pixel more on each side: the shape's edge is smooth.
    m_pixels
        = m_seen.isEmpty() ? QRect() : m_grid.touchedPixels(mark.rect().intersected(canvas)).adjusted(-1, -1, 1, 1);
    if (!shown.isEmpty())
        m_pixels &= shown.adjusted(-1, -1, 1, 1);
}

QImage LoupePainter::magnifierContents(
    const CaptureSample &sample, const std::vector<const PreparedMark *> &below) const
{
    const bool opaque = !sample.isEmpty() && !sample.hasAlphaChannel();
    QImage contents
        = PixelMemory::allocate(m_pixels.size(), opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    if (contents.isNull())
        return {};
    contents.fill(opaque ? Qt::black : Qt::transparent);
    const PixelGrid magnified { m_magnified * m_grid.toPixels
        * QTransform::fromTranslate(-m_pixels.x(), -m_pixels.y()) };
    if (!sample.isEmpty()) {
        const double margin = 2 / sample.pixelsPerPoint(); // what interpolation looks at beyond the edge
        const QRect pixels = sample.touchedPixels(m_seen.adjusted(-margin, -margin, margin, margin));
        QPainter painter(&contents);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(magnified.toPixels.mapRect(sample.pointsOf(pixels)), sample.region(pixels));
    }
    const PixelTarget target { contents, contents.rect(), magnified, false };
    for (const PreparedMark *mark : below)
        paint(*mark, target);
    return contents;
}

QPainterPath LoupePainter::shape() const
{
    const QRectF box = m_mark.rect();
    if (!m_mark.magnifierRound)
        return continuousCornerPath(box, std::min(box.width(), box.height()) * 0.18);
    QPainterPath ellipse;
    ellipse.addEllipse(box);
    return ellipse;
}

void LoupePainter::prepare(const QImage &contents, const QRectF &paintable, PreparedMark &out) const
{
    const QRectF box = m_mark.rect();
    if (box.isEmpty())
        return;
    const QPainterPath outline = shape();
    if (!contents.isNull()) {
        out.add(LensStep { Strokes::within(outline, paintable), contents, m_pixels.topLeft() });
    }
    // White with a dark hairline on either side shows on anything.
    constexpr double hairline = 0.75; // points
    const QColor hairlineColor(0, 0, 0, 150);
    const double width = std::clamp(std::min(box.width(), box.height()) * 0.03, 2.0, 6.0);
    out.fill(Strokes::within(Strokes::outline(outline, { width + 2 * hairline }), paintable), hairlineColor);
    out.fill(Strokes::within(Strokes::outline(outline, { width }), paintable), Qt::white);
}

} // namespace tessaly
