// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QKeyEvent;

namespace tessaly {

class AnnotationStore;
class CanvasCommands;
class CanvasController;
class CanvasLayerSlot;
class CanvasPointer;
class TextEditor;

/// What the keys mean while a canvas has the focus.
class CanvasKeys : public QObject {
    Q_OBJECT

public:
    /// Keeps the references.
    CanvasKeys(AnnotationStore &store, CanvasController &controller, CanvasPointer &pointer, CanvasCommands &commands,
        TextEditor &text, const CanvasLayerSlot &layer);

    /// Whether a shortcut of the window must leave this key to the canvas.
    bool claims(const QKeyEvent &event) const;
    /// Each is true when the key meant something.
    bool press(const QKeyEvent &event);
    bool release(const QKeyEvent &event);

Q_SIGNALS:
    void menuRequested();
    /// Nothing is left for Tab to select, or F6 was pressed: the focus goes on, or back.
    void focusLeaves(bool backwards);

private:
    bool passModifier(const QKeyEvent &event, bool isPressed);
    bool pressSpecial(const QKeyEvent &event);
    bool nudge(const QKeyEvent &event);
    bool pressDigit(const QKeyEvent &event);
    bool pressCommand(const QKeyEvent &event);
    bool pressToolLetter(const QKeyEvent &event);

    AnnotationStore &m_store;
    CanvasController &m_controller;
    CanvasPointer &m_pointer;
    CanvasCommands &m_commands;
    TextEditor &m_text;
    const CanvasLayerSlot &m_layer;
};

} // namespace tessaly
