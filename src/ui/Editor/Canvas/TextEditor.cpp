// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/TextEditor.h"

#include "core/Desktop/Clipboard.h"
#include "core/Desktop/TextOffer.h"
#include "core/Editing/CanvasController.h"
#include "core/Rendering/TextGeometry.h"

#include <QGuiApplication>
#include <QScopedValueRollback>
#include <QStyleHints>

#include <utility>

namespace tessaly {

using Anchor = EditedText::Anchor;
using Direction = EditedText::Direction;

TextEditor::TextEditor(
    AnnotationStore &store, TextGeometry &geometry, const CanvasController &controller, Clipboard &clipboard) :
    m_store(store),
    m_geometry(geometry),
    m_controller(controller),
    m_clipboard(clipboard)
{
    m_tripleClick.setSingleShot(true);
    connect(&m_store, &AnnotationStore::changed, this, &TextEditor::follow);
    connect(&m_blink, &QTimer::timeout, this, [this] {
        m_isCaretLit = !m_isCaretLit;
        Q_EMIT marksChanged();
    });
}

const Annotation *TextEditor::mark() const
{
    const auto index = m_mark ? m_store.indexOf(*m_mark) : std::nullopt;
    return index ? &m_store.annotations().at(*index) : nullptr;
}

void TextEditor::begin(const QUuid &id, std::optional<QPointF> caretAt, bool isNew)
{
    finish();
    m_mark = id;
    const Annotation *edited = mark();
    if (!edited) {
        m_mark.reset();
        return;
    }
    m_text = EditedText(edited->text);
    m_isNew = isNew;
    m_isRecorded = isNew;
    m_before = m_store.currentSnapshot();
    m_tool = m_store.tool();
    if (caretAt)
        m_text.setCaret(m_geometry.positionAt(*edited, *caretAt), Anchor::Move);
    else
        m_text.selectAll();
    m_store.setSelectedID(id);
    m_store.setStepOpen(m_isRecorded); // another font for it is part of writing it
    restartBlinking();
    Q_EMIT activeChanged(true);
    Q_EMIT marksChanged();
}

void TextEditor::leave()
{
    m_mark.reset();
    m_preedit.clear();
    m_isSelecting = false;
    m_firstWord.reset();
    m_goalX.reset();
    m_before = {};
    m_store.setStepOpen(false);
    m_blink.stop();
    Q_EMIT activeChanged(false);
    Q_EMIT marksChanged();
}

void TextEditor::finish()
{
    if (!m_mark)
        return;
    const QUuid id = *m_mark;
    const bool wasSelected = m_store.selectedID() == m_mark;
    if (!std::exchange(m_preedit, {}).isEmpty())
        write();
    {
        const QScopedValueRollback guard(m_isWriting, true);
        if (m_text.text().trimmed().isEmpty()) {
            removeMark();
        } else if (!m_isNew && m_isRecorded && m_store.currentSnapshot() == m_before) {
            m_store.cancelLastChange({}); // the step, and no mark
            if (wasSelected)
                m_store.setSelectedID(id);
        }
    }
    leave();
}

void TextEditor::removeMark()
{
    if (m_isNew) {
        m_store.cancelLastChange(*m_mark);
        return;
    }
    recordOnce();
    QList<Annotation> others = m_store.annotations();
    others.removeIf([this](const Annotation &each) { return each.id == m_mark; });
    m_store.setSelectedID({});
    m_store.setAnnotations(std::move(others));
}

void TextEditor::recordOnce()
{
    if (std::exchange(m_isRecorded, true))
        return;
    m_store.beginChange();
    m_store.setStepOpen(true);
}

QString TextEditor::shownText() const
{
    QString shown = m_text.text();
    return shown.insert(m_text.caret(), m_preedit);
}

void TextEditor::write()
{
    const Annotation *edited = mark();
    const QString shown = shownText();
    if (!edited || edited->text == shown)
        return;
    const QScopedValueRollback guard(m_isWriting, true);
    recordOnce();
    m_store.setSelectedID(m_mark);
    m_store.updateSelection(Undo::Skip, [&](Annotation &each) { each.text = shown; });
}

void TextEditor::commit()
{
    m_goalX.reset();
    write();
    restartBlinking();
    Q_EMIT marksChanged();
    const QLineF caret = caretLine();
    Q_EMIT caretMoved(QRectF(caret.p1(), caret.p2()));
}

/// The store changed by someone else's hand.
void TextEditor::follow()
{
    if (!m_mark || m_isWriting)
        return;
    const Annotation *edited = mark();
    if (!edited || edited->text != shownText())
        leave(); // taken back: nothing of this edit is left to finish
    else if (m_store.selectedID() != m_mark || m_store.tool() != m_tool)
        finish();
    else
        Q_EMIT marksChanged(); // another size or font moves the caret
}

void TextEditor::moveRow(Direction direction, Anchor anchor)
{
    const Annotation *edited = mark();
    if (!edited)
        return;
    const QLineF line = m_geometry.caret(*edited, m_text.caret());
    const double goal = m_goalX.value_or(line.x1());
    const qsizetype lineStart = m_text.text().lastIndexOf(u'\n', m_text.caret() - 1);
    const bool isFirst = m_text.caret() == 0 || lineStart < 0;
    const bool isLast = m_text.text().indexOf(u'\n', m_text.caret()) < 0;
    const bool isForward = direction == Direction::Forward;
    if (isForward ? isLast : isFirst) {
        m_text.move(EditedText::Step::Text, direction, anchor);
    } else {
        const double y = line.center().y() + (isForward ? line.dy() : -line.dy());
        m_text.setCaret(m_geometry.positionAt(*edited, { goal, y }), anchor);
    }
    commit();
    m_goalX = goal;
}

void TextEditor::copy() const
{
    if (m_text.hasSelection())
        m_clipboard.offer(std::make_unique<TextOffer>(m_text.selectedText()));
}

bool TextEditor::canPaste() const { return !TextOffer::textOf(m_clipboard).isEmpty(); }

void TextEditor::paste()
{
    m_text.insert(TextOffer::textOf(m_clipboard), false);
    commit();
}

void TextEditor::restartBlinking()
{
    m_isCaretLit = true;
    const int period = QGuiApplication::styleHints()->cursorFlashTime();
    if (period > 0)
        m_blink.start(period / 2);
}

void TextEditor::setFocused(bool focused)
{
    m_isFocused = focused;
    if (isActive())
        Q_EMIT marksChanged();
}

QLineF TextEditor::caretLine() const
{
    const Annotation *edited = mark();
    return edited ? m_geometry.caret(*edited, m_text.caret() + m_preeditCaret * !m_preedit.isEmpty()) : QLineF();
}

TextMarks TextEditor::marks() const
{
    const Annotation *edited = mark();
    if (!edited)
        return {};
    TextMarks marks { .isEditing = true };
    if (m_text.hasSelection() && m_preedit.isEmpty())
        marks.selection = m_geometry.selection(*edited, m_text.selectionStart(), m_text.selectionEnd());
    if (!m_preedit.isEmpty())
        marks.composed = m_geometry.selection(*edited, m_text.caret(), m_text.caret() + m_preedit.size());
    if (m_isCaretLit && m_isFocused)
        marks.caret = caretLine();
    return marks;
}

} // namespace tessaly
