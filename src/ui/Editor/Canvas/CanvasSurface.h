// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/LiveCanvas.h"
#include "ui/Editor/Canvas/CanvasPainter.h"

#include <QObject>

class QPaintEvent;
class QWidget;

namespace tessaly {

class AnnotationStore;
class CanvasController;
class CanvasLayerSlot;
class CanvasViewport;

/// What a canvas widget shows: the live picture and what is painted over it.
///
/// Changes are collected: however many there are in one event, the picture is brought up to date once, and the widget
/// repaints only what came out different.
class CanvasSurface : public QObject {
    Q_OBJECT

public:
    /// Keeps the references.
    CanvasSurface(QWidget &widget, const AnnotationStore &store, const CanvasController &controller,
        CanvasViewport &viewport, const CanvasLayerSlot &layer);

    /// Something that can be seen may have changed.
    void invalidate();
    /// Brings the picture up to date now.
    void synchronize();
    void setTextMarks(const TextMarks &marks);
    void paint(const QPaintEvent &event);

    /// For comparisons of what is shown, without anything over it.
    const QImage &picture() const { return m_live.picture(); }

private:
    LiveScene scene() const;
    LiveView view() const;
    CanvasOverlay overlay() const;
    QRect toView(const QRect &pixels) const;
    QRect toPixels(const QRect &view) const;

    QWidget &m_widget;
    const AnnotationStore &m_store;
    const CanvasController &m_controller;
    CanvasViewport &m_viewport;
    const CanvasLayerSlot &m_layer;
    LiveCanvas m_live;
    TextMarks m_text;
    CanvasOverlay m_shown;
    bool m_isStale = true;
    bool m_isQueued = false;
};

} // namespace tessaly
