// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasPointer.h"

#include "core/Editing/CanvasController.h"
#include "ui/Editor/Canvas/CanvasCursors.h"
#include "ui/Editor/Canvas/CanvasLayer.h"
#include "ui/Editor/Canvas/CanvasNavigation.h"
#include "ui/Editor/Canvas/TextEditor.h"

#include <QLineF>
#include <QMouseEvent>
#include <QWidget>

#include <chrono>

namespace tessaly {

using namespace std::chrono_literals;

namespace {
constexpr auto longPressTime = 600ms;
constexpr double longPressTolerance = 8; ///< view pixels that a resting finger trembles
} // namespace

CanvasPointer::CanvasPointer(QWidget &widget, CanvasController &controller, CanvasNavigation &navigation,
    TextEditor &text, const CanvasLayerSlot &layer) :
    m_widget(widget),
    m_controller(controller),
    m_navigation(navigation),
    m_text(text),
    m_layer(layer)
{
    m_longPress.setSingleShot(true);
    m_longPress.setInterval(longPressTime);
    connect(&m_longPress, &QTimer::timeout, this, [this] {
        m_controller.cancelGesture();
        m_navigation.endDrag();
        m_layer->release({ .position = m_pressedAt });
        m_isDown = false; // the menu takes the release
        Q_EMIT longPressed(m_pressedAt);
    });
    connect(&m_controller, &CanvasController::cursorChanged, this, &CanvasPointer::updateCursor);
}

PointerInput CanvasPointer::input(const QMouseEvent &event) const
{
    const auto type = event.pointerType();
    const bool isTouch = type == QPointingDevice::PointerType::Finger || type == QPointingDevice::PointerType::Pen
        || event.deviceType() == QInputDevice::DeviceType::TouchScreen;
    return { event.position(), event.button(), event.buttons(), event.modifiers(), isTouch };
}

bool CanvasPointer::startsPan(const QMouseEvent &event) const
{
    return event.button() == Qt::MiddleButton || (m_isSpaceHeld && event.button() == Qt::LeftButton);
}

void CanvasPointer::watchLongPress(const PointerInput &input)
{
    m_pressedAt = input.position;
    if (input.touch && input.button == Qt::LeftButton)
        m_longPress.start();
}

void CanvasPointer::press(const QMouseEvent &event)
{
    m_widget.setFocus(Qt::MouseFocusReason);
    const PointerInput pressed = input(event);
    if (m_controller.isGestureActive() || m_navigation.isPanning()) {
        m_mayOpenMenu = false;
        m_controller.press(pressed);
        return;
    }
    m_mayOpenMenu = true;
    m_isDown = event.button() == Qt::LeftButton;
    if (startsPan(event)) {
        m_navigation.beginPan(event.position());
        updateCursor();
        return;
    }
    if (event.button() == Qt::RightButton) // the menu looks for the mark itself
        return;
    if (m_text.press(pressed))
        return;
    watchLongPress(pressed);
    if (!m_layer->press(pressed))
        m_controller.press(pressed);
}

void CanvasPointer::move(const QMouseEvent &event)
{
    const PointerInput moved = input(event);
    m_position = moved.position;
    if (QLineF(m_pressedAt, moved.position).length() > longPressTolerance)
        m_longPress.stop();
    if (m_navigation.isPanning()) {
        m_navigation.panTo(event.position());
        return;
    }
    drag(moved);
    if (moved.buttons == Qt::NoButton)
        m_layer->hover(moved.position);
    updateCursor();
}

void CanvasPointer::drag(const PointerInput &moved)
{
    if (m_layer->isDragging()) {
        m_layer->drag(moved);
        m_navigation.followDrag(moved,
            { [&layer = m_layer] { return layer->isDragging(); },
                [&layer = m_layer](const PointerInput &input) { layer->drag(input); } });
        return;
    }
    if (m_text.drag(moved))
        return;
    m_controller.move(moved);
    if (m_controller.isGestureActive())
        m_navigation.followDrag(moved,
            { [&controller = m_controller] { return controller.isGestureActive(); },
                [&controller = m_controller](const PointerInput &input) { controller.move(input); } });
}

void CanvasPointer::release(const QMouseEvent &event)
{
    m_longPress.stop();
    m_navigation.endDrag();
    if (event.button() == Qt::LeftButton)
        m_isDown = false;
    const bool endsPan = event.button() == Qt::MiddleButton || event.button() == Qt::LeftButton;
    if (m_navigation.isPanning() && endsPan)
        m_navigation.endPan();
    else if (m_layer->isDragging() && event.button() == Qt::LeftButton)
        m_layer->release(input(event));
    else if (!m_text.release(input(event)))
        m_controller.release(input(event));
    updateCursor();
}

void CanvasPointer::doubleClick(const QMouseEvent &event)
{
    const PointerInput clicked = input(event);
    if (event.button() != Qt::LeftButton || startsPan(event)) {
        press(event);
        return;
    }
    m_isDown = true;
    const bool isTaken = m_text.isActive() ? m_text.doubleClick(clicked) : m_layer->doubleClick(clicked);
    if (!isTaken)
        m_controller.doubleClick(clicked);
}

void CanvasPointer::leave()
{
    m_controller.leave();
    m_layer->hover({});
}

void CanvasPointer::setSpaceHeld(bool held)
{
    m_controller.setSpaceHeld(held);
    m_isSpaceHeld = held && !m_controller.isGestureActive();
    updateCursor();
}

void CanvasPointer::cancelPan()
{
    m_navigation.endPan();
    updateCursor();
}

void CanvasPointer::updateCursor()
{
    if (m_navigation.isPanning())
        m_widget.setCursor(Qt::ClosedHandCursor);
    else if (m_isSpaceHeld)
        m_widget.setCursor(Qt::OpenHandCursor);
    else if (m_text.isOver(m_position) && !m_controller.isGestureActive())
        m_widget.setCursor(Qt::IBeamCursor);
    else if (m_layer->isDragging() || (!m_controller.isGestureActive() && m_layer->isOver(m_position)))
        m_widget.setCursor(m_layer->cursorAt(m_position));
    else
        m_widget.setCursor(cursorFor(m_controller.cursor(), m_widget.devicePixelRatioF()));
}

} // namespace tessaly
