// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace tessaly {

/// A text with caret, selection and its own undo, as long as it is being edited. Positions are QString indices and fall
/// between what the user sees as characters.
class EditedText {
public:
    /// What a key moves over.
    enum class Step { Character, Word, Line, Text };
    enum class Direction { Backward, Forward };
    enum class Anchor { Move, Keep }; ///< Keep extends the selection

    explicit EditedText(QString text = {}) : m_state { std::move(text) } { }

    const QString &text() const { return m_state.text; }
    qsizetype caret() const { return m_state.caret; }
    qsizetype selectionStart() const { return std::min(m_state.caret, m_state.anchor); }
    qsizetype selectionEnd() const { return std::max(m_state.caret, m_state.anchor); }
    bool hasSelection() const { return m_state.caret != m_state.anchor; }
    QString selectedText() const;

    void setCaret(qsizetype position, Anchor anchor);
    void move(Step step, Direction direction, Anchor anchor);
    void selectAll();
    void selectAround(qsizetype position, Step step);
    /// Selects from the word that lies from `start` to `end` up to the one at the position, with the caret there.
    void selectWords(qsizetype start, qsizetype end, qsizetype position);

    /// In place of the selection; line breaks of other systems become plain ones, and what would make the text longer
    /// than can be drawn is left out. `isTyping` joins consecutive calls into one undo step.
    void insert(const QString &text, bool isTyping);
    /// The selection, or what move() would pass over.
    void remove(Step step, Direction direction);

    bool canUndo() const { return !m_undo.isEmpty(); }
    bool canRedo() const { return !m_redo.isEmpty(); }
    void undo();
    void redo();

private:
    struct State {
        QString text;
        qsizetype caret = 0, anchor = 0;
    };
    qsizetype boundary(qsizetype from, Step step, Direction direction) const;
    void record(bool isTyping);
    void replaceSelection(const QString &text);

    State m_state;
    QList<State> m_undo, m_redo;
    bool m_isTyping = false;
};

} // namespace tessaly
