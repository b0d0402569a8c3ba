// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/MarkClipboard.h"
#include "core/Editing/MarkCommands.h"
#include "ui/Menu/CommandTarget.h"

#include <QObject>

namespace tessaly {

class AnnotationStore;
class CanvasController;
class CanvasLayerSlot;
class TextEditor;

/// The commands that a canvas performs: those on marks, and while a text is edited those on the text.
class CanvasCommands : public QObject, public CommandTarget {
    Q_OBJECT

public:
    /// Keeps the references.
    CanvasCommands(AnnotationStore &store, CanvasController &controller, TextEditor &text, Clipboard &clipboard,
        SavedStyles &styles, CopiedStyle &copiedStyle, const CanvasLayerSlot &layer);

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;

    /// With the middle of what is pasted at an image point.
    void pasteAt(QPointF at) { paste(at); }
    bool canPaste() const { return m_clipboard.canPaste(); }
    /// Says so where something could not be done.
    void report(const Outcome &outcome);

    MarkCommands &marks() { return m_marks; }

Q_SIGNALS:
    void message(const QString &sentence);
    void copyImageRequested();
    void commandRequested(CommandId command);
    void changed();

private:
    struct Row;
    static const Row *rowOf(CommandId command);
    bool hasFreeSelection() const;
    void paste(std::optional<QPointF> at);
    void copy();
    void editText();

    AnnotationStore &m_store;
    CanvasController &m_controller;
    TextEditor &m_text;
    const CanvasLayerSlot &m_layer;
    MarkClipboard m_clipboard;
    MarkCommands m_marks;
};

} // namespace tessaly
