// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/EditedText.h"

#include "core/Annotation/MarkLimits.h"

#include <QTextBoundaryFinder>

#include <utility>

namespace tessaly {

namespace {

QString cleaned(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    for (QChar &character : text) {
        if (character == u'\r' || character == QChar::ParagraphSeparator || character == QChar::LineSeparator)
            character = u'\n';
        else if (character == u'\t')
            character = u' ';
    }
    text.removeIf([](QChar character) { return character != u'\n' && character.category() == QChar::Other_Control; });
    return text;
}

qsizetype wordBoundary(const QString &text, qsizetype from, EditedText::Direction direction)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, text);
    finder.setPosition(from);
    const bool isForward = direction == EditedText::Direction::Forward;
    while ((isForward ? finder.toNextBoundary() : finder.toPreviousBoundary()) >= 0)
        if (finder.boundaryReasons() & QTextBoundaryFinder::StartOfItem)
            return finder.position();
    return isForward ? text.size() : 0;
}

qsizetype characterBoundary(const QString &text, qsizetype from, EditedText::Direction direction)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(from);
    if (direction == EditedText::Direction::Forward) {
        const qsizetype next = finder.toNextBoundary();
        return next < 0 ? text.size() : next;
    }
    return std::max<qsizetype>(finder.toPreviousBoundary(), 0);
}

} // namespace

QString EditedText::selectedText() const
{
    return m_state.text.mid(selectionStart(), selectionEnd() - selectionStart());
}

void EditedText::setCaret(qsizetype position, Anchor anchor)
{
    m_isTyping = false;
    m_state.caret = std::clamp<qsizetype>(position, 0, m_state.text.size());
    if (anchor == Anchor::Move)
        m_state.anchor = m_state.caret;
}

qsizetype EditedText::boundary(qsizetype from, Step step, Direction direction) const
{
    const QString &text = m_state.text;
    const bool isForward = direction == Direction::Forward;
    switch (step) {
    case Step::Character:
        return characterBoundary(text, from, direction);
    case Step::Word:
        return wordBoundary(text, from, direction);
    case Step::Line: {
        const qsizetype end = text.indexOf(u'\n', from);
        const qsizetype start = from == 0 ? 0 : text.lastIndexOf(u'\n', from - 1) + 1;
        return isForward ? (end < 0 ? text.size() : end) : start;
    }
    case Step::Text:
        break;
    }
    return isForward ? text.size() : 0;
}

void EditedText::move(Step step, Direction direction, Anchor anchor)
{
    const bool collapses = step == Step::Character && anchor == Anchor::Move && hasSelection();
    if (collapses)
        setCaret(direction == Direction::Forward ? selectionEnd() : selectionStart(), anchor);
    else
        setCaret(boundary(m_state.caret, step, direction), anchor);
}

void EditedText::selectAll()
{
    m_isTyping = false;
    m_state.anchor = 0;
    m_state.caret = m_state.text.size();
}

void EditedText::selectAround(qsizetype position, Step step)
{
    if (step == Step::Line) {
        setCaret(boundary(position, step, Direction::Backward), Anchor::Move);
        setCaret(boundary(position, step, Direction::Forward), Anchor::Keep);
        return;
    }
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, m_state.text);
    finder.setPosition(std::min(position, m_state.text.size()));
    const bool isStart = finder.boundaryReasons() & QTextBoundaryFinder::StartOfItem;
    setCaret(isStart ? position : std::max<qsizetype>(finder.toPreviousBoundary(), 0), Anchor::Move);
    const qsizetype end = finder.toNextBoundary();
    setCaret(end < 0 ? m_state.text.size() : end, Anchor::Keep);
}

void EditedText::selectWords(qsizetype start, qsizetype end, qsizetype position)
{
    selectAround(position, Step::Word);
    const qsizetype wordStart = selectionStart(), wordEnd = selectionEnd();
    const bool isBackward = position < start;
    setCaret(isBackward ? end : start, Anchor::Move);
    setCaret(isBackward ? wordStart : std::max(wordEnd, end), Anchor::Keep);
}

void EditedText::record(bool isTyping)
{
    if (!(isTyping && m_isTyping))
        m_undo.append(m_state);
    m_redo.clear();
    m_isTyping = isTyping;
}

void EditedText::replaceSelection(const QString &text)
{
    const qsizetype start = selectionStart();
    m_state.text.replace(start, selectionEnd() - start, text);
    m_state.caret = m_state.anchor = start + text.size();
}

void EditedText::insert(const QString &text, bool isTyping)
{
    const qsizetype room = MarkLimits::maxTextLength - m_state.text.size() + (selectionEnd() - selectionStart());
    const QString fitting = cleaned(text).left(std::max<qsizetype>(room, 0));
    if (fitting.isEmpty())
        return;
    record(isTyping && !hasSelection());
    replaceSelection(fitting);
    m_isTyping = isTyping && fitting != u"\n";
}

void EditedText::remove(Step step, Direction direction)
{
    if (!hasSelection()) {
        const qsizetype other = boundary(m_state.caret, step, direction);
        if (other == m_state.caret)
            return;
        record(false);
        m_state.anchor = other;
    } else {
        record(false);
    }
    replaceSelection({});
}

void EditedText::undo()
{
    if (m_undo.isEmpty())
        return;
    m_redo.append(std::exchange(m_state, m_undo.takeLast()));
    m_isTyping = false;
}

void EditedText::redo()
{
    if (m_redo.isEmpty())
        return;
    m_undo.append(std::exchange(m_state, m_redo.takeLast()));
    m_isTyping = false;
}

} // namespace tessaly
