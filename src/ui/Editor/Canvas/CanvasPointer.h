// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/PointerInput.h"

#include <QObject>
#include <QTimer>

class QMouseEvent;
class QWidget;

namespace tessaly {

class CanvasController;
class CanvasLayerSlot;
class CanvasNavigation;
class TextEditor;

/// Hands a canvas widget's pointer events to whom they mean: panning, the text being edited, the layer over the
/// capture, or the marks. Keeps the widget's cursor.
class CanvasPointer : public QObject {
    Q_OBJECT

public:
    /// Keeps the references.
    CanvasPointer(QWidget &widget, CanvasController &controller, CanvasNavigation &navigation, TextEditor &text,
        const CanvasLayerSlot &layer);

    void press(const QMouseEvent &event);
    void move(const QMouseEvent &event);
    void release(const QMouseEvent &event);
    void doubleClick(const QMouseEvent &event);
    void leave();

    /// With no button down the space bar makes the pointer a hand; else the unfinished mark moves.
    void setSpaceHeld(bool held);
    /// Puts the canvas down where it is.
    void cancelPan();
    bool isButtonDown() const { return m_isDown; }
    /// Whether the last right press may open a menu: not one that cancelled a drag.
    bool mayOpenMenu() const { return m_mayOpenMenu; }
    void updateCursor();

Q_SIGNALS:
    /// A finger or pen was held in place: what the right button does.
    void longPressed(QPointF position);

private:
    PointerInput input(const QMouseEvent &event) const;
    void watchLongPress(const PointerInput &input);
    bool startsPan(const QMouseEvent &event) const;
    void drag(const PointerInput &moved);

    QWidget &m_widget;
    CanvasController &m_controller;
    CanvasNavigation &m_navigation;
    TextEditor &m_text;
    const CanvasLayerSlot &m_layer;
    QTimer m_longPress;
    QPointF m_pressedAt, m_position;
    bool m_isSpaceHeld = false;
    bool m_isDown = false;
    bool m_mayOpenMenu = true;
};

} // namespace tessaly
