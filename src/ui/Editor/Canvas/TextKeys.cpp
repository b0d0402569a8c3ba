// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/TextKeys.h"

#include "ui/Editor/Canvas/TextEditor.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace tessaly {

namespace {

using Anchor = EditedText::Anchor;
using Direction = EditedText::Direction;
using Step = EditedText::Step;

constexpr Direction back = Direction::Backward, forth = Direction::Forward;

struct MoveKey {
    QKeySequence::StandardKey move, select;
    Step step;
    Direction direction;
};
constexpr std::array moveKeys {
    MoveKey { QKeySequence::MoveToNextChar, QKeySequence::SelectNextChar, Step::Character, forth },
    MoveKey { QKeySequence::MoveToPreviousChar, QKeySequence::SelectPreviousChar, Step::Character, back },
    MoveKey { QKeySequence::MoveToNextWord, QKeySequence::SelectNextWord, Step::Word, forth },
    MoveKey { QKeySequence::MoveToPreviousWord, QKeySequence::SelectPreviousWord, Step::Word, back },
    MoveKey { QKeySequence::MoveToEndOfLine, QKeySequence::SelectEndOfLine, Step::Line, forth },
    MoveKey { QKeySequence::MoveToStartOfLine, QKeySequence::SelectStartOfLine, Step::Line, back },
    MoveKey { QKeySequence::MoveToEndOfDocument, QKeySequence::SelectEndOfDocument, Step::Text, forth },
    MoveKey { QKeySequence::MoveToStartOfDocument, QKeySequence::SelectStartOfDocument, Step::Text, back },
};

struct RowKey {
    QKeySequence::StandardKey move, select;
    Direction direction;
};
constexpr std::array rowKeys {
    RowKey { QKeySequence::MoveToNextLine, QKeySequence::SelectNextLine, forth },
    RowKey { QKeySequence::MoveToPreviousLine, QKeySequence::SelectPreviousLine, back },
};

struct EditKey {
    QKeySequence::StandardKey key;
    void (*edit)(TextEditor &);
};
void cut(TextEditor &editor)
{
    editor.copy();
    if (editor.text().hasSelection())
        editor.text().remove(Step::Character, forth);
}
constexpr std::array editKeys {
    EditKey { QKeySequence::Undo, [](TextEditor &editor) { editor.text().undo(); } },
    EditKey { QKeySequence::Redo, [](TextEditor &editor) { editor.text().redo(); } },
    EditKey { QKeySequence::Cut, cut },
    EditKey { QKeySequence::Copy, [](TextEditor &editor) { editor.copy(); } },
    EditKey { QKeySequence::Paste, [](TextEditor &editor) { editor.paste(); } },
    EditKey { QKeySequence::SelectAll, [](TextEditor &editor) { editor.text().selectAll(); } },
    EditKey { QKeySequence::Delete, [](TextEditor &editor) { editor.text().remove(Step::Character, forth); } },
    EditKey { QKeySequence::DeleteStartOfWord, [](TextEditor &editor) { editor.text().remove(Step::Word, back); } },
    EditKey { QKeySequence::DeleteEndOfWord, [](TextEditor &editor) { editor.text().remove(Step::Word, forth); } },
};

/// No standard key on some desktops. With Shift it is mostly a slip while capitals are typed.
bool isBackspace(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Backspace && !(event.modifiers() & ~Qt::ShiftModifier);
}

bool isEnter(const QKeyEvent &event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

/// The second key for what is taken back, which only some desktops have among their standard keys.
bool isSecondRedo(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Y && event.modifiers() == Qt::ControlModifier;
}

/// Modifiers that make a key a command rather than a letter. AltGr is none of them.
bool isCommand(const QKeyEvent &event)
{
    return event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
}

bool typeLetters(const QKeyEvent &event, TextEditor &editor)
{
    const QString typed = event.text();
    if (typed.isEmpty() || isCommand(event) || !typed.at(0).isPrint())
        return false;
    editor.text().insert(typed, true);
    return true;
}

bool editOrMove(const QKeyEvent &event, TextEditor &editor)
{
    for (const EditKey &row : editKeys) {
        if (event.matches(row.key)) {
            row.edit(editor);
            return true;
        }
    }
    for (const MoveKey &row : moveKeys) {
        if (event.matches(row.move) || event.matches(row.select)) {
            editor.text().move(row.step, row.direction, event.matches(row.select) ? Anchor::Keep : Anchor::Move);
            return true;
        }
    }
    return false;
}

} // namespace

bool TextKeys::belongsToText(const QKeyEvent &event)
{
    const auto isAny = [&event](const auto &rows) {
        return std::ranges::any_of(
            rows, [&event](const auto &row) { return event.matches(row.move) || event.matches(row.select); });
    };
    const bool isFunctionKey = event.key() >= Qt::Key_F1 && event.key() <= Qt::Key_F35 && event.key() != Qt::Key_F2;
    return (!isCommand(event) && !isFunctionKey) || isEnter(event) || isSecondRedo(event) || isAny(moveKeys)
        || isAny(rowKeys)
        || std::ranges::any_of(editKeys, [&event](const EditKey &row) { return event.matches(row.key); });
}

void TextKeys::press(const QKeyEvent &event, TextEditor &editor)
{
    for (const RowKey &row : rowKeys) {
        if (event.matches(row.move) || event.matches(row.select)) {
            editor.moveRow(row.direction, event.matches(row.select) ? Anchor::Keep : Anchor::Move);
            return;
        }
    }
    if (event.key() == Qt::Key_Escape || (isEnter(event) && event.modifiers() & Qt::ControlModifier)) {
        editor.finish();
        return;
    }
    if (isEnter(event))
        editor.text().insert(QStringLiteral("\n"), true);
    else if (isBackspace(event))
        editor.text().remove(Step::Character, back);
    else if (isSecondRedo(event))
        editor.text().redo();
    else if (!editOrMove(event, editor) && !typeLetters(event, editor))
        return;
    editor.commit();
}

} // namespace tessaly
