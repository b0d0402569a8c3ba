// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/CanvasAdornments.h"
#include "core/Editing/CanvasTransform.h"
#include "core/Editing/PointerInput.h"

#include <QObject>
#include <QUuid>

#include <memory>

namespace tessaly {

class AnnotationStore;
class Clock;
class TextGeometry;

/// What pointer and keyboard do to the marks of one open capture: creating, selecting, moving, reshaping, cropping,
/// snapping. It knows no window, so a test can drive it; a canvas widget forwards events and paints adornments().
///
/// One gesture is one undo step; a gesture that is cancelled, or changed nothing, leaves none. Main thread only.
class CanvasController : public QObject {
    Q_OBJECT

public:
    /// Keeps the references. `clock` times the repeats of arrow keys.
    CanvasController(AnnotationStore &store, TextGeometry &text, const Clock &clock, QObject *parent = nullptr);
    ~CanvasController() override;

    void setTransform(const CanvasTransform &transform);
    const CanvasTransform &transform() const;

    /// Only the left button makes gestures; the right button during one cancels it.
    void press(const PointerInput &input);
    void move(const PointerInput &input); ///< also without a button: hovering
    void release(const PointerInput &input);
    void doubleClick(const PointerInput &input);
    void leave();

    /// A modifier, or the space bar, was pressed or released without movement.
    void setModifiers(Qt::KeyboardModifiers modifiers);
    void setSpaceHeld(bool held);

    /// A notch is 1 (away from the user) or -1. True when the gesture or the selected mark took it.
    bool wheel(double notches, Qt::KeyboardModifiers modifiers);

    bool isGestureActive() const;
    /// Puts back what was before the gesture. False when there was none.
    bool cancelGesture();
    /// Escape, one rung a call: drag, crop, selection, tool. False when no rung is left. (Text comes before,
    /// elsewhere.)
    bool escape();

    /// Arrow keys: `direction` is a unit step, one axis. Moves by 1 image point, or 10 with Shift; with Ctrl it moves
    /// the right or bottom edge, or a line's end. Repeats within a second are one undo step.
    void nudge(QPoint direction, Qt::KeyboardModifiers modifiers);
    /// Tab and Shift+Tab: the next mark in order; wraps.
    void selectNext(bool backwards);
    void applyCrop();

    bool snapping() const;
    void setSnapping(bool on);

    /// The top-most mark that a click at a view position means: by its visible part, tolerance included.
    std::optional<QUuid> markAt(QPointF view) const;
    /// Whether a press at a view position takes hold of a mark or of one of its handles.
    bool meansMark(QPointF view) const;
    /// What a mark covers, by the measures of the fonts that draw it, in image points.
    QRectF visibleBox(const QUuid &mark) const;

    CanvasAdornments adornments() const;
    CursorShape cursor() const;

Q_SIGNALS:
    void adornmentsChanged();
    void cursorChanged();
    /// The text of this mark is to be edited, with the caret at an image point, or all selected without one. A new
    /// mark is in the store already, empty, with its creation recorded as an undo step.
    void editTextRequested(const QUuid &mark, std::optional<QPointF> caretAt, bool isNew);
    /// The user picked the image tool and clicked where the picture shall go.
    void imageRequested(QPointF at);
    /// A sentence for a screen reader, and a rectangle to scroll into view.
    void announced(const QString &sentence, const QRectF &imageRect);
    /// Something the user should read, where an alert would be too much.
    void failed(const QString &sentence);

private:
    class Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
