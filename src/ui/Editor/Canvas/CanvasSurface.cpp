// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasSurface.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/CanvasController.h"
#include "ui/Editor/Canvas/CanvasLayer.h"
#include "ui/Editor/Canvas/CanvasViewport.h"
#include "ui/Style/Appearance.h"

#include <QPainter>
#include <QPaintEvent>
#include <QWidget>

#include <cmath>
#include <utility>

namespace tessaly {

CanvasSurface::CanvasSurface(QWidget &widget, const AnnotationStore &store, const CanvasController &controller,
    CanvasViewport &viewport, const CanvasLayerSlot &layer) :
    m_widget(widget),
    m_store(store),
    m_controller(controller),
    m_viewport(viewport),
    m_layer(layer)
{
}

void CanvasSurface::invalidate()
{
    m_isStale = true;
    if (std::exchange(m_isQueued, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_isQueued = false;
            if (m_widget.isVisible())
                synchronize();
        },
        Qt::QueuedConnection);
}

void CanvasSurface::setTextMarks(const TextMarks &marks)
{
    m_text = marks;
    invalidate();
}

LiveScene CanvasSurface::scene() const
{
    const bool isFramed = !m_store.isCropping();
    return { .image = m_store.image(),
        .annotations = m_store.annotations(),
        .frame = isFramed ? m_store.frame() : std::nullopt,
        .watermark = isFramed ? m_store.watermark() : std::nullopt };
}

LiveView CanvasSurface::view() const
{
    return { .pixelSize = m_viewport.pixelSize(),
        .pixelsPerPoint = m_viewport.pixelsPerPoint(),
        .pixelOrigin = m_viewport.pixelOrigin(),
        .surround = Colors::canvasSurround(),
        .checkerLight = Colors::checkerLight(),
        .checkerDark = Colors::checkerDark() };
}

CanvasOverlay CanvasSurface::overlay() const
{
    return { .adornments = m_controller.adornments(),
        .text = m_text,
        .layer = m_layer->marks(),
        .transform = m_viewport.transform(),
        .imageSize = m_store.image().pointSize,
        .pixelScale = m_store.pixelScale() };
}

void CanvasSurface::synchronize()
{
    if (!std::exchange(m_isStale, false))
        return;
    QRegion dirty;
    for (const QRect &pixels : m_live.update(scene(), view()))
        dirty += toView(pixels);
    CanvasOverlay now = overlay();
    if (now != m_shown) {
        dirty += CanvasPainter::area(m_shown, m_viewport.size());
        dirty += CanvasPainter::area(now, m_viewport.size());
        m_shown = std::move(now);
    }
    if (!dirty.isEmpty())
        m_widget.update(dirty);
}

QRect CanvasSurface::toView(const QRect &pixels) const
{
    const double ratio = m_viewport.devicePixelRatio();
    const QPointF phase = m_viewport.phase();
    return QRectF(QPointF(pixels.topLeft()) / ratio + phase, QSizeF(pixels.size()) / ratio).toAlignedRect();
}

QRect CanvasSurface::toPixels(const QRect &view) const
{
    const double ratio = m_viewport.devicePixelRatio();
    const QRectF pixels((QPointF(view.topLeft()) - m_viewport.phase()) * ratio, QSizeF(view.size()) * ratio);
    return pixels.toAlignedRect() & m_live.picture().rect();
}

void CanvasSurface::paint(const QPaintEvent &event)
{
    synchronize();
    QPainter painter(&m_widget);
    painter.save();
    painter.translate(m_viewport.phase());
    painter.scale(1 / m_viewport.devicePixelRatio(), 1 / m_viewport.devicePixelRatio());
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (const QRect &exposed : event.region()) {
        const QRect pixels = toPixels(exposed);
        painter.drawImage(pixels.topLeft(), m_live.picture(), pixels);
    }
    painter.restore();
    if (event.region().intersects(CanvasPainter::area(m_shown, m_viewport.size())))
        CanvasPainter::paint(painter, m_shown, m_viewport.size());
}

} // namespace tessaly
