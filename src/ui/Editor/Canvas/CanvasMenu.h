// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

class QMenu;
class QWidget;

namespace tessaly {

class AnnotationStore;
class CanvasCommands;
class CanvasController;
class CanvasLayerSlot;
class CommandTarget;
class TextEditor;

/// The menus that the right button, the menu key and a long press open.
class CanvasMenu : public QObject {
    Q_OBJECT

public:
    /// Keeps the references. `requests` takes the commands that the canvas leaves to its window.
    CanvasMenu(QWidget &widget, AnnotationStore &store, const CanvasController &controller, CanvasCommands &commands,
        TextEditor &text, CommandTarget &requests, const CanvasLayerSlot &layer);

    /// For what lies at a view position; a mark is selected by it.
    void openAt(QPointF view);
    /// For the selected mark, or for the canvas.
    void openForSelection();

private:
    void fillForText(QMenu &menu);
    void fillForMark(QMenu &menu);
    void fillForCanvas(QMenu &menu, QPointF imagePoint);
    void open(QPointF view);

    QWidget &m_widget;
    AnnotationStore &m_store;
    const CanvasController &m_controller;
    CanvasCommands &m_commands;
    TextEditor &m_text;
    CommandTarget &m_requests;
    const CanvasLayerSlot &m_layer;
    QPointer<QMenu> m_menu;
};

} // namespace tessaly
