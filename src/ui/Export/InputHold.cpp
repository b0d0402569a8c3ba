// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/InputHold.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace tessaly {

static bool isInput(const QEvent &event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::NativeGesture:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

InputHold::InputHold() { qApp->installEventFilter(this); }

bool InputHold::eventFilter(QObject *watched, QEvent *event)
{
    if (!isInput(*event) || belongsToException(watched))
        return false;
    event->ignore(); // a window that was asked to close stays
    return true;
}

bool InputHold::belongsToException(const QObject *object) const
{
    if (!m_exception)
        return false;
    if (object->isWindowType())
        return object == m_exception->windowHandle();
    for (const QObject *each = object; each; each = each->parent()) {
        if (each == m_exception)
            return true;
    }
    return false;
}

} // namespace tessaly
