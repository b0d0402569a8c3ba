// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/CanvasController.h"
#include "core/Rendering/TextGeometry.h"
#include "ui/Editor/Canvas/TextEditor.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QStyleHints>

/// What mouse and input methods do to the text in hand.
namespace tessaly {

using Anchor = EditedText::Anchor;
using Step = EditedText::Step;

qsizetype TextEditor::positionAt(QPointF view) const
{
    const Annotation *edited = mark();
    return edited ? m_geometry.positionAt(*edited, m_controller.transform().toImage(view)) : 0;
}

bool TextEditor::isOver(QPointF view) const
{
    constexpr double tolerance = 3; // view pixels; the handles begin beyond
    const Annotation *edited = mark();
    if (!edited)
        return false;
    const QRectF box = m_controller.transform().toView(m_geometry.box(*edited));
    return box.adjusted(-tolerance, -tolerance, tolerance, tolerance).contains(view);
}

bool TextEditor::press(const PointerInput &input)
{
    if (!isActive())
        return false;
    const bool isOnHandle = m_controller.cursor().cursor == CanvasCursor::Resize;
    if (isOver(input.position) && !isOnHandle) {
        const qsizetype position = positionAt(input.position);
        m_isSelecting = !m_tripleClick.isActive();
        if (m_isSelecting)
            m_text.setCaret(position, input.modifiers & Qt::ShiftModifier ? Anchor::Keep : Anchor::Move);
        else
            m_text.selectAround(position, Step::Line);
        m_tripleClick.stop();
        commit();
        return true;
    }
    finish();
    // The click that ends a text does not begin the next one.
    return m_tool == Tool::Text && !isOnHandle && !m_controller.markAt(input.position);
}

bool TextEditor::drag(const PointerInput &input)
{
    if (!m_isSelecting)
        return false;
    const qsizetype position = positionAt(input.position);
    if (m_firstWord)
        m_text.selectWords(m_firstWord->first, m_firstWord->second, position);
    else
        m_text.setCaret(position, Anchor::Keep);
    commit();
    return true;
}

bool TextEditor::release(const PointerInput &)
{
    const bool wasSelecting = m_isSelecting;
    m_isSelecting = false;
    m_firstWord.reset();
    return wasSelecting;
}

bool TextEditor::doubleClick(const PointerInput &input)
{
    if (!isActive() || !isOver(input.position))
        return press(input);
    m_text.selectAround(positionAt(input.position), Step::Word);
    m_firstWord = { m_text.selectionStart(), m_text.selectionEnd() };
    m_isSelecting = true;
    m_tripleClick.start(QGuiApplication::styleHints()->mouseDoubleClickInterval());
    commit();
    return true;
}

void TextEditor::compose(const QInputMethodEvent &event)
{
    if (!isActive())
        return;
    if (event.replacementLength() > 0) {
        const qsizetype start = m_text.caret() + event.replacementStart();
        m_text.setCaret(start, Anchor::Move);
        m_text.setCaret(start + event.replacementLength(), Anchor::Keep);
    }
    const bool begins = m_preedit.isEmpty() && !event.preeditString().isEmpty();
    if (m_text.hasSelection() && (begins || event.replacementLength() > 0))
        m_text.remove(Step::Character, EditedText::Direction::Forward);
    m_text.insert(event.commitString(), true);
    m_preedit = event.preeditString();
    m_preeditCaret = m_preedit.size();
    for (const auto &attribute : event.attributes())
        if (attribute.type == QInputMethodEvent::Cursor)
            m_preeditCaret = attribute.start;
    commit();
}

QVariant TextEditor::inputMethodQuery(Qt::InputMethodQuery query) const
{
    switch (query) {
    case Qt::ImEnabled:
        return isActive();
    case Qt::ImCursorRectangle: {
        const QLineF caret = caretLine();
        return m_controller.transform().toView(QRectF(caret.p1(), caret.p2())).adjusted(0, 0, 1, 0);
    }
    case Qt::ImSurroundingText:
        return m_text.text();
    case Qt::ImCurrentSelection:
        return m_text.selectedText();
    case Qt::ImCursorPosition:
        return m_text.caret();
    case Qt::ImAnchorPosition:
        return m_text.selectionStart() == m_text.caret() ? m_text.selectionEnd() : m_text.selectionStart();
    case Qt::ImHints:
        return int(Qt::ImhMultiLine);
    default:
        return {};
    }
}

} // namespace tessaly
