// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/PointerInput.h"
#include "ui/Editor/Canvas/CanvasPainter.h"
#include "ui/Editor/Canvas/EditedText.h"

#include <QTimer>
#include <QVariant>

class QInputMethodEvent;

namespace tessaly {

class CanvasController;
class Clipboard;
class TextGeometry;

/// Editing of one text mark in place.
///
/// The mark stays in the store and is drawn from there with every letter typed; here are caret, selection and what an
/// input method has not committed yet. However long it takes, the whole edit is one undo step, and none at all when it
/// changed nothing.
class TextEditor : public QObject {
    Q_OBJECT

public:
    /// Keeps the references.
    TextEditor(
        AnnotationStore &store, TextGeometry &geometry, const CanvasController &controller, Clipboard &clipboard);

    bool isActive() const { return m_mark.has_value(); }
    /// `caretAt` is an image point; without one everything is selected. The creation of a new mark is recorded already.
    void begin(const QUuid &mark, std::optional<QPointF> caretAt, bool isNew);
    /// A text without anything to see leaves no mark.
    void finish();

    EditedText &text() { return m_text; }
    const EditedText &text() const { return m_text; }
    /// Moves the caret by lines.
    void moveRow(EditedText::Direction direction, EditedText::Anchor anchor);
    void copy() const;
    void paste();
    bool canPaste() const;
    /// Takes over what was done to text().
    void commit();

    /// Each is true when the event was meant for the text. A press elsewhere finishes the edit.
    bool press(const PointerInput &input);
    bool drag(const PointerInput &input);
    bool release(const PointerInput &input);
    bool doubleClick(const PointerInput &input);
    bool isOver(QPointF view) const;

    void compose(const QInputMethodEvent &event);
    /// Rectangles in view pixels.
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const;

    TextMarks marks() const;
    void setFocused(bool focused);

Q_SIGNALS:
    void activeChanged(bool active);
    void marksChanged();
    /// Image points.
    void caretMoved(const QRectF &caret);

private:
    const Annotation *mark() const;
    QString shownText() const;
    QLineF caretLine() const;
    void write();
    void follow();
    void leave();
    void removeMark();
    void recordOnce();
    void restartBlinking();
    qsizetype positionAt(QPointF view) const;

    AnnotationStore &m_store;
    TextGeometry &m_geometry;
    const CanvasController &m_controller;
    Clipboard &m_clipboard;
    std::optional<QUuid> m_mark;
    EditedText m_text;
    Snapshot m_before;
    Tool m_tool = Tool::Select; ///< when the edit began
    QString m_preedit;
    qsizetype m_preeditCaret = 0;
    std::optional<double> m_goalX; ///< where the caret wants to be in rows that it passes
    QTimer m_blink, m_tripleClick;
    bool m_isNew = false;
    bool m_isRecorded = false;
    bool m_isWriting = false;
    bool m_isSelecting = false; ///< with the mouse
    std::optional<std::pair<qsizetype, qsizetype>> m_firstWord; ///< while whole words are selected
    bool m_isFocused = true;
    bool m_isCaretLit = true;
};

} // namespace tessaly
