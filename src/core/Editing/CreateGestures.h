// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/EditingContext.h"
#include "core/Editing/Gesture.h"
#include "core/Editing/GestureSnapping.h"
#include "core/Editing/UndoableChange.h"

namespace tessaly {

/// Draws a new mark, which is selected from the start. Space moves it whole while it is unfinished, the wheel changes
/// its stroke, strength or magnification and that of the tool.
class CreateGesture : public Gesture {
public:
    void begin() override;
    void update(const GestureInput &input) final;
    void finish() override { m_change->keep(); }
    void abandon() override { m_change->abandon(); }
    bool wheel(int notches) override;
    CursorShape cursor() const override { return { CanvasCursor::Cross }; }
    QList<QLineF> guides() const override { return m_snapping.guides(); }
    bool showsHandles() const override { return false; }

protected:
    /// Keeps the reference to the context.
    CreateGesture(EditingContext &context, AnnotationKind kind, QPointF pressedAt);

    /// Gives the mark the shape that the pointer asks for.
    virtual void shape(const GestureInput &input) = 0;
    /// The mark and all that it is shaped by goes this way.
    virtual void moveBy(QPointF way) { m_anchor += way; }

    void change(const std::function<void(Annotation &)> &change);
    QPointF anchor() const { return m_anchor; }
    AnnotationKind kind() const { return m_kind; }
    const EditingContext &context() const { return m_context; }
    /// The pointer, pulled to what there is to snap to; as it is while the mark is moved.
    QPointF pulled(const GestureInput &input) const;
    GestureSnapping &snapping() { return m_snapping; }

private:
    EditingContext &m_context;
    AnnotationKind m_kind;
    QPointF m_anchor; ///< where the press was, unless it was moved since
    QPointF m_last; ///< the pointer at the last update
    GestureSnapping m_snapping;
    std::optional<UndoableChange> m_change;
};

/// Shift: a square or circle; Alt: the press is the centre.
class CreateBoxGesture final : public CreateGesture {
public:
    CreateBoxGesture(EditingContext &context, AnnotationKind kind, QPointF pressedAt) :
        CreateGesture(context, kind, pressedAt)
    {
    }

private:
    void shape(const GestureInput &input) override;
};

/// Shift: steps of 15 degrees; Alt: the press is the centre.
class CreateLineGesture final : public CreateGesture {
public:
    CreateLineGesture(EditingContext &context, AnnotationKind kind, QPointF pressedAt) :
        CreateGesture(context, kind, pressedAt)
    {
    }

private:
    void shape(const GestureInput &input) override;
};

/// Shift: a straight piece, from where it was pressed.
class PenGesture final : public CreateGesture {
public:
    PenGesture(EditingContext &context, AnnotationKind kind, QPointF pressedAt) :
        CreateGesture(context, kind, pressedAt)
    {
    }

    void begin() override;

private:
    void shape(const GestureInput &input) override;
    void moveBy(QPointF way) override;

    bool m_isStraight = false;
};

/// The gesture that draws a mark of the kind; null where a press alone makes one.
std::unique_ptr<Gesture> createGesture(EditingContext &context, AnnotationKind kind, QPointF pressedAt);

} // namespace tessaly
