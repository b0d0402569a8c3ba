// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/PointerInput.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <optional>

class QEvent;
class QGestureEvent;
class QNativeGestureEvent;
class QWheelEvent;
class QWidget;

namespace tessaly {

class AnnotationStore;
class CanvasController;
class CanvasViewport;
class EditorZoom;

/// Scrolling, zooming and panning of a canvas widget.
///
/// Until the user looks elsewhere, the whole capture is kept in view while the widget finds its size.
class CanvasNavigation : public QObject {
    Q_OBJECT

public:
    /// Keeps the references.
    CanvasNavigation(QWidget &widget, const AnnotationStore &store, CanvasController &controller,
        CanvasViewport &viewport, EditorZoom &zoom);

    /// The widget has another size or place, or its screen another resolution.
    void fitWidget();
    /// The capture or its frame may have another size.
    void followLayout();

    void wheel(const QWheelEvent &event);
    /// Pinches of a trackpad and of a touch screen. False when the event is something else.
    bool gesture(const QEvent &event);
    void reveal(const QRectF &imageRect);
    void scrollTo(Qt::Orientation orientation, int value);

    void beginPan(QPointF position);
    void panTo(QPointF position);
    void endPan();
    bool isPanning() const { return m_panFrom.has_value(); }

    /// Something that the pointer drags.
    struct Drag {
        std::function<bool()> isActive;
        std::function<void(const PointerInput &)> move;
    };
    /// While the pointer stays near an edge, the canvas scrolls and the drag goes on with it.
    void followDrag(const PointerInput &input, Drag drag);
    void endDrag();

Q_SIGNALS:
    /// Another part of the canvas is shown, or at another scale.
    void moved();

private:
    void applyZoom();
    void publish();
    void fitFirst();
    void zoomAbout(QPointF position, double factor);
    void scrollAtEdge();
    QPointF edgePull() const;

    QWidget &m_widget;
    const AnnotationStore &m_store;
    CanvasController &m_controller;
    CanvasViewport &m_viewport;
    EditorZoom &m_zoom;
    std::optional<QPointF> m_fixed; ///< the view position to zoom about; else the middle
    std::optional<QPointF> m_panFrom;
    PointerInput m_dragged;
    Drag m_drag;
    QTimer m_edgeTimer;
    bool m_isUntouched = true;
    bool m_isFitting = false;
};

} // namespace tessaly
