// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasNavigation.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/CanvasController.h"
#include "core/Editing/EditorZoom.h"
#include "ui/Editor/Canvas/CanvasViewport.h"

#include <QApplication>
#include <QGestureEvent>
#include <QNativeGestureEvent>
#include <QPinchGesture>
#include <QScopedValueRollback>
#include <QWheelEvent>
#include <QWidget>

#include <algorithm>
#include <chrono>
#include <cmath>

namespace tessaly {

using namespace std::chrono_literals;

namespace {
constexpr double notch = 120; ///< of a wheel, in eighths of a degree
constexpr double stepOfNotch = 1.25; ///< the same as a step of the zoom commands
constexpr double linePoints = 20; ///< that one scrolled line moves
constexpr double edgeWidth = 24; ///< view pixels along the edge in which a drag scrolls
constexpr auto edgeDelay = 200ms, edgeInterval = 16ms;
constexpr double edgeSpeed = 0.3; ///< of the distance into the edge, per interval
} // namespace

CanvasNavigation::CanvasNavigation(QWidget &widget, const AnnotationStore &store, CanvasController &controller,
    CanvasViewport &viewport, EditorZoom &zoom) :
    m_widget(widget),
    m_store(store),
    m_controller(controller),
    m_viewport(viewport),
    m_zoom(zoom)
{
    connect(&m_zoom, &EditorZoom::changed, this, &CanvasNavigation::applyZoom);
    connect(&m_edgeTimer, &QTimer::timeout, this, &CanvasNavigation::scrollAtEdge);
    followLayout();
    applyZoom();
    m_isUntouched = true;
}

void CanvasNavigation::publish()
{
    m_controller.setTransform(m_viewport.transform());
    Q_EMIT moved();
}

void CanvasNavigation::applyZoom()
{
    m_isUntouched = m_isUntouched && m_isFitting;
    m_viewport.setScale(m_zoom.scale(), m_fixed.value_or(m_viewport.center()));
    publish();
}

void CanvasNavigation::fitFirst()
{
    const QScopedValueRollback guard(m_isFitting, true);
    constexpr double air = 48;
    const QSizeF canvas = m_viewport.layout().canvasSize;
    const QSizeF room = m_viewport.size() - QSizeF(air, air);
    if (canvas.width() <= room.width() && canvas.height() <= room.height())
        m_zoom.actualSize();
    else
        m_zoom.fit(canvas);
}

void CanvasNavigation::fitWidget()
{
    const QPointF offset = m_widget.mapTo(m_widget.window(), QPointF());
    m_viewport.setView(m_widget.size(), m_widget.devicePixelRatioF(), offset);
    m_zoom.setViewportSize(m_widget.size());
    if (m_isUntouched)
        fitFirst();
    publish();
}

void CanvasNavigation::followLayout()
{
    // The frame would hide what the crop rectangle is drawn over.
    const FrameLayout layout = m_store.isCropping()
        ? FrameLayout(m_store.image().pointSize, std::nullopt, m_store.pixelScale())
        : m_store.frameLayout();
    if (layout == m_viewport.layout())
        return;
    m_viewport.setLayout(layout);
    publish();
}

void CanvasNavigation::zoomAbout(QPointF position, double factor)
{
    const QScopedValueRollback guard(m_fixed, std::optional(position));
    m_zoom.setScale(m_zoom.scale() * factor);
}

void CanvasNavigation::wheel(const QWheelEvent &event)
{
    m_isUntouched = false;
    const QPoint angle = event.angleDelta();
    // Alt turns a wheel sideways on some platforms before it gets here.
    const double notches = (angle.y() != 0 ? angle.y() : angle.x()) / notch;
    if (m_controller.wheel(notches, event.modifiers()))
        return;
    if (event.modifiers() & Qt::ControlModifier) {
        zoomAbout(event.position(), std::pow(stepOfNotch, notches));
        return;
    }
    QPointF delta = event.pixelDelta();
    if (delta.isNull())
        delta = QPointF(angle) / notch * QApplication::wheelScrollLines() * linePoints;
    if ((event.modifiers() & Qt::ShiftModifier) && delta.x() == 0)
        delta = delta.transposed();
    if (m_viewport.scrollBy(delta))
        publish();
}

bool CanvasNavigation::gesture(const QEvent &event)
{
    if (event.type() == QEvent::NativeGesture) {
        const auto &native = static_cast<const QNativeGestureEvent &>(event);
        if (native.gestureType() != Qt::ZoomNativeGesture)
            return false;
        m_controller.cancelGesture();
        zoomAbout(native.position(), 1 + native.value());
        return true;
    }
    if (event.type() != QEvent::Gesture)
        return false;
    const auto *pinch
        = static_cast<const QPinchGesture *>(static_cast<const QGestureEvent &>(event).gesture(Qt::PinchGesture));
    if (!pinch)
        return false;
    m_isUntouched = false;
    m_controller.cancelGesture();
    const QPointF center = m_widget.mapFromGlobal(pinch->centerPoint());
    if (m_viewport.scrollBy(pinch->centerPoint() - pinch->lastCenterPoint()))
        publish();
    // Qt tells of every movement of the fingers twice; the second time its factor is the one before, too.
    if (pinch->scaleFactor() != pinch->lastScaleFactor())
        zoomAbout(center, pinch->scaleFactor());
    return true;
}

void CanvasNavigation::reveal(const QRectF &imageRect)
{
    m_viewport.reveal(imageRect);
    publish();
}

void CanvasNavigation::scrollTo(Qt::Orientation orientation, int value)
{
    m_isUntouched = false;
    m_viewport.setScrollValue(orientation, value);
    publish();
}

void CanvasNavigation::beginPan(QPointF position)
{
    m_isUntouched = false;
    m_panFrom = position;
}

void CanvasNavigation::panTo(QPointF position)
{
    const QPointF delta = position - *m_panFrom;
    m_panFrom = position;
    if (m_viewport.scrollBy(delta))
        publish();
}

void CanvasNavigation::endPan() { m_panFrom.reset(); }

QPointF CanvasNavigation::edgePull() const
{
    const auto pull = [](double position, double length) {
        if (position < edgeWidth)
            return edgeWidth - position;
        return std::min(0.0, length - edgeWidth - position);
    };
    return { pull(m_dragged.position.x(), m_viewport.size().width()),
        pull(m_dragged.position.y(), m_viewport.size().height()) };
}

void CanvasNavigation::followDrag(const PointerInput &input, Drag drag)
{
    m_dragged = input;
    m_drag = std::move(drag);
    m_isUntouched = false;
    if (edgePull().isNull())
        m_edgeTimer.stop();
    else if (!m_edgeTimer.isActive())
        m_edgeTimer.start(edgeDelay);
}

void CanvasNavigation::endDrag() { m_edgeTimer.stop(); }

void CanvasNavigation::scrollAtEdge()
{
    if (!m_drag.isActive()) {
        m_edgeTimer.stop();
        return;
    }
    m_edgeTimer.setInterval(edgeInterval);
    if (!m_viewport.scrollBy(edgePull() * edgeSpeed))
        return;
    publish();
    m_drag.move(m_dragged);
}

} // namespace tessaly
