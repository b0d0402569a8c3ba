// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/LiveFrame.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/ContinuousCorners.h"
#include "core/Rendering/PictureCaches.h"
#include "core/Rendering/PixelBlend.h"
#include "core/Rendering/WatermarkPainter.h"

#include <cmath>

namespace tessaly {

QRegion LiveFrame::update(const LiveScene &scene, const LiveView &view, const LiveGeometry &geometry, bool marksChanged,
    const ContentSource &content)
{
    const FrameBackground::Checkerboard checkerboard { view.checkerLight, view.checkerDark };
    const bool isOpaque = !scene.image.pixels.hasAlphaChannel();
    const QRect fitted = geometry.fittedCanvas(scene.image.pixelSize());
    const bool sameScale = geometry.isMoved(m_geometry) && fitted == m_fitted;
    const bool sameShadow = isOpaque || !scene.frame || !marksChanged;
    const bool sameStyle
        = sameScale && sameShadow && scene.frame == m_frame && checkerboard == m_checkerboard && isOpaque == m_isOpaque;
    const bool sameWatermark = sameScale && scene.watermark == m_watermark;
    const QPoint move = geometry.canvas.topLeft() - m_geometry.canvas.topLeft();
    m_geometry = geometry;
    m_fitted = fitted;
    m_frame = scene.frame;
    m_watermark = scene.watermark;
    m_checkerboard = checkerboard;
    m_isOpaque = isOpaque;
    m_hasBackground = m_frame || !isOpaque;
    if (!sameStyle)
        updateStyle(content);
    else if (m_hasBackground && (!move.isNull() || m_layer.area() != geometry.visibleCanvas()))
        fillLayer(m_layer.scroll(move, geometry.visibleCanvas()));
    if (!sameWatermark)
        updateWatermark();
    return sameStyle && sameWatermark ? QRegion() : QRegion(geometry.visibleCanvas());
}

void LiveFrame::updateStyle(const ContentSource &content)
{
    m_shadow.reset();
    m_corners = {};
    if (!m_hasBackground) {
        m_layer = {};
        return;
    }
    const std::optional<FrameStyle> frame = m_frame ? std::optional(m_frame->drawable()) : std::nullopt;
    m_background.emplace(frame, m_geometry.layout.canvasSize, m_checkerboard);
    if (frame)
        updateShadow(*frame, content);
    m_layer.reset(m_geometry.visibleCanvas(), QImage::Format_RGB32);
    fillLayer(m_layer.area());
}

void LiveFrame::updateShadow(const FrameStyle &frame, const ContentSource &content)
{
    const FrameLayout::Shadow shadow = FrameLayout::shadowMetrics(frame, m_geometry.layout);
    const double scale = m_geometry.scale, cornerRadius = frame.cornerRadius * scale, radius = shadow.radius * scale;
    const QSize size = m_geometry.content.size();
    const QPoint origin = m_geometry.content.topLeft() - m_geometry.canvas.topLeft();
    const QPainterPath shape = continuousCornerPath(QRectF(QPointF(), QSizeF(size)), cornerRadius);
    const QImage seenThrough = m_isOpaque ? QImage() : content();
    if (seenThrough.isNull()) {
        // Only when zoomed far into a picture is a shadow, or a corner, larger than this.
        constexpr double largest = 500; // pixels
        const int reduction = int(std::ceil(std::max({ 1.0, radius / largest, cornerRadius / largest })));
        const QTransform reduced = QTransform::fromScale(1.0 / reduction, 1.0 / reduction);
        m_shadow.emplace(size / reduction, reduced.map(shape), cornerRadius / reduction, radius / reduction);
        m_shadow->magnify(reduction);
    } else {
        m_shadow.emplace(seenThrough, shape, cornerRadius, radius);
    }
    m_shadowOrigin = origin + QPoint(0, int(std::lround(shadow.yOffset * scale)));
    m_shadowOpacity = shadow.opacity;
    m_corners = CoverageMask(shape.translated(origin), m_fitted);
}

void LiveFrame::updateWatermark()
{
    m_watermarkSteps = {};
    if (!m_watermark)
        return;
    const double scale = m_geometry.scale;
    m_watermarkSteps = prepareWatermark(m_watermark->drawable(), m_geometry.layout.canvasSize, scale);
    qint64 budget = maxPicturePixels / 8;
    m_watermarkSteps.fitPictures(PixelGrid::scaledBy(scale), m_fitted, budget);
    m_watermarkSteps.fitShapes(PixelGrid::scaledBy(scale), m_fitted);
}

void LiveFrame::fillLayer(const QRegion &region)
{
    if (m_layer.image().isNull())
        return;
    constexpr int rowsInBand = 32;
    for (const QRect &rect : region) {
        const int bands = (rect.height() + rowsInBand - 1) / rowsInBand;
        uchar *bits = m_layer.image().bits();
        const QImage &image = m_layer.image();
        Parallel::inBands(rect.height(), bands, Parallel::defaultThreadCount(), [&](int first, int end) {
            QImage layer(bits, image.width(), image.height(), image.bytesPerLine(), image.format());
            fillRows({ rect.left(), rect.top() + first, rect.width(), end - first }, layer);
        });
    }
}

/// Fills pixels of the view in the layer.
void LiveFrame::fillRows(const QRect &rows, QImage &layer) const
{
    const QPoint canvas = m_geometry.canvas.topLeft();
    const QRect inCanvas = rows.translated(-canvas);
    // A gradient has the bytes of an export only where it is painted from the start of the row.
    constexpr int widestRow = 16384; // pixels; beyond that it is not worth the time
    if (m_background->isGradient() && m_geometry.canvas.width() <= widestRow) {
        QImage whole(m_geometry.canvas.width(), rows.height(), QImage::Format_RGB32);
        m_background->paint(
            whole, QRect(QPoint(0, inCanvas.top()), whole.size()), m_geometry.scale, QPoint(0, inCanvas.top()));
        copyPixels(whole, QRect(QPoint(inCanvas.left(), 0), rows.size()), layer, rows.topLeft() - m_layer.origin());
    } else {
        m_background->paint(layer, inCanvas, m_geometry.scale, m_layer.origin() - canvas);
    }
    if (m_shadow)
        m_shadow->blend(
            layer, rows.translated(-m_layer.origin()), m_shadowOrigin + canvas - m_layer.origin(), m_shadowOpacity);
}

void LiveFrame::paintBackground(const QRect &area, QImage &picture) const
{
    const QRect inside = area.intersected(m_layer.area());
    if (!inside.isEmpty() && !m_layer.image().isNull())
        copyPixels(m_layer.image(), inside.translated(-m_layer.origin()), picture, inside.topLeft());
}

void LiveFrame::paintContent(const QRect &area, const QImage &content, QPoint position, QImage &picture) const
{
    const QPoint canvas = m_geometry.canvas.topLeft();
    if (m_frame)
        PixelBlend::fill(
            picture, area.translated(-canvas), m_corners, content, position - canvas, PixelBlend::Mode::Over, -canvas);
    else
        PixelBlend::draw(picture, area, content, position);
}

void LiveFrame::paintWatermark(const QRect &area, QImage &picture) const
{
    const QPoint canvas = m_geometry.canvas.topLeft();
    paint(m_watermarkSteps,
        PixelTarget { picture, area.translated(-canvas), PixelGrid::scaledBy(m_geometry.scale), true, -canvas });
}

} // namespace tessaly
