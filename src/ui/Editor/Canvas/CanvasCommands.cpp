// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasCommands.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Desktop/Clipboard.h"
#include "core/Editing/CanvasController.h"
#include "ui/Editor/Canvas/CanvasLayer.h"
#include "ui/Editor/Canvas/TextEditor.h"

#include <algorithm>
#include <array>

namespace tessaly {

namespace {

/// What a command means to a text that is being edited.
struct TextRow {
    CommandId id;
    bool (*can)(const TextEditor &);
    void (*perform)(TextEditor &);
};
bool hasSelection(const TextEditor &editor) { return editor.text().hasSelection(); }
void remove(TextEditor &editor) { editor.text().remove(EditedText::Step::Character, EditedText::Direction::Forward); }
constexpr std::array textRows {
    TextRow { CommandId::Undo, [](const TextEditor &editor) { return editor.text().canUndo(); },
        [](TextEditor &editor) { editor.text().undo(); } },
    TextRow { CommandId::Redo, [](const TextEditor &editor) { return editor.text().canRedo(); },
        [](TextEditor &editor) { editor.text().redo(); } },
    TextRow { CommandId::Copy, hasSelection, [](TextEditor &editor) { editor.copy(); } },
    TextRow { CommandId::Cut, hasSelection,
        [](TextEditor &editor) {
            editor.copy();
            remove(editor);
        } },
    TextRow { CommandId::Paste, [](const TextEditor &editor) { return editor.canPaste(); },
        [](TextEditor &editor) { editor.paste(); } },
    TextRow { CommandId::Delete, [](const TextEditor &) { return true; }, remove },
};

const TextRow *textRow(CommandId command)
{
    const auto row = std::ranges::find(textRows, command, &TextRow::id);
    return row == textRows.end() ? nullptr : &*row;
}

} // namespace

struct CanvasCommands::Row {
    CommandId id;
    bool (*can)(const CanvasCommands &);
    void (*perform)(CanvasCommands &);
};

bool CanvasCommands::hasFreeSelection() const { return m_store.selected() && !m_store.isCropping(); }

const CanvasCommands::Row *CanvasCommands::rowOf(CommandId command)
{
    constexpr auto always = [](const CanvasCommands &) { return true; };
    constexpr auto onMark = [](const CanvasCommands &self) { return self.hasFreeSelection(); };
    constexpr auto withMarks = [](const CanvasCommands &self) { return !self.m_store.annotations().isEmpty(); };
    static constexpr std::array rows {
        Row { CommandId::Cut, onMark, [](CanvasCommands &self) { self.m_clipboard.cut(self.m_store); } },
        Row { CommandId::Copy, always, [](CanvasCommands &self) { self.copy(); } },
        Row { CommandId::Paste,
            [](const CanvasCommands &self) { return self.canPaste() && !self.m_store.isCropping(); },
            [](CanvasCommands &self) { self.paste({}); } },
        Row { CommandId::Delete, onMark, [](CanvasCommands &self) { self.m_store.deleteSelected(); } },
        Row { CommandId::Duplicate, onMark, [](CanvasCommands &self) { self.m_marks.duplicate(); } },
        Row { CommandId::EditText,
            [](const CanvasCommands &self) {
                return self.hasFreeSelection() && self.m_store.selected()->kind == AnnotationKind::Text;
            },
            [](CanvasCommands &self) { self.editText(); } },
        Row { CommandId::BringForward, onMark, [](CanvasCommands &self) { self.m_marks.reorder(Order::Forward); } },
        Row { CommandId::SendBackward, onMark, [](CanvasCommands &self) { self.m_marks.reorder(Order::Backward); } },
        Row { CommandId::BringToFront, onMark, [](CanvasCommands &self) { self.m_marks.reorder(Order::ToFront); } },
        Row { CommandId::SendToBack, onMark, [](CanvasCommands &self) { self.m_marks.reorder(Order::ToBack); } },
        Row { CommandId::CopyStyle, onMark,
            [](CanvasCommands &self) {
                self.m_marks.copyStyle();
                Q_EMIT self.changed();
            } },
        Row { CommandId::PasteStyle,
            [](const CanvasCommands &self) { return self.hasFreeSelection() && self.m_marks.canPasteStyle(); },
            [](CanvasCommands &self) { self.m_marks.pasteStyle(); } },
        Row { CommandId::SaveStyle,
            [](const CanvasCommands &self) {
                return self.hasFreeSelection() && styleCategory(toolOf(self.m_store.selected()->kind));
            },
            [](CanvasCommands &self) { Q_EMIT self.commandRequested(CommandId::SaveStyle); } },
        Row { CommandId::SelectNext, withMarks, [](CanvasCommands &self) { self.m_controller.selectNext(false); } },
        Row { CommandId::SelectPrevious, withMarks, [](CanvasCommands &self) { self.m_controller.selectNext(true); } },
        Row { CommandId::Deselect, onMark, [](CanvasCommands &self) { self.m_store.setSelectedID({}); } },
        Row { CommandId::ToggleSnapping, always,
            [](CanvasCommands &self) {
                self.m_controller.setSnapping(!self.m_controller.snapping());
                Q_EMIT self.changed();
            } },
    };
    const auto row = std::ranges::find(rows, command, &Row::id);
    return row == rows.end() ? nullptr : &*row;
}

CanvasCommands::CanvasCommands(AnnotationStore &store, CanvasController &controller, TextEditor &text,
    Clipboard &clipboard, SavedStyles &styles, CopiedStyle &copiedStyle, const CanvasLayerSlot &layer) :
    m_store(store),
    m_controller(controller),
    m_text(text),
    m_layer(layer),
    m_clipboard(clipboard),
    m_marks(store, styles, copiedStyle)
{
    connect(&clipboard, &Clipboard::changed, this, &CanvasCommands::changed);
}

bool CanvasCommands::knows(CommandId command) const
{
    return rowOf(command) || (m_text.isActive() && textRow(command));
}

bool CanvasCommands::canPerform(CommandId command) const
{
    if (m_text.isActive() && command != CommandId::ToggleSnapping) {
        const TextRow *row = textRow(command);
        return row && row->can(m_text);
    }
    const Row *row = rowOf(command);
    return row && row->can(*this);
}

void CanvasCommands::perform(CommandId command)
{
    if (!canPerform(command) || m_controller.isGestureActive())
        return;
    const TextRow *text = m_text.isActive() ? textRow(command) : nullptr;
    if (text) {
        text->perform(m_text);
        m_text.commit();
    } else {
        rowOf(command)->perform(*this);
    }
}

void CanvasCommands::report(const Outcome &outcome)
{
    if (!outcome)
        Q_EMIT message(outcome.failure().message);
}

void CanvasCommands::paste(std::optional<QPointF> at) { report(m_clipboard.paste(m_store, at)); }

void CanvasCommands::copy()
{
    if (m_layer->canCopy())
        m_layer->copy();
    else if (m_store.selected())
        m_clipboard.copy(m_store);
    else
        Q_EMIT copyImageRequested();
}

void CanvasCommands::editText() { m_text.begin(*m_store.selectedID(), {}, false); }

} // namespace tessaly
