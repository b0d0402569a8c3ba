// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/MarkGesture.h"

namespace tessaly {

/// A gesture that drags one handle of a mark. Where in the handle it was grabbed makes no difference.
class HandleGesture : public MarkGesture {
public:
    HandleGesture(EditingContext &context, const Annotation &mark, HandleRole role, QPointF grabOffset) :
        MarkGesture(context, mark),
        m_role(role),
        m_grabOffset(grabOffset)
    {
    }

    CursorShape cursor() const override { return { CanvasCursor::CrossArrow }; }

protected:
    HandleRole role() const { return m_role; }
    /// Where the handle itself is dragged to.
    QPointF target(const GestureInput &input) const { return input.point - m_grabOffset; }

private:
    HandleRole m_role;
    QPointF m_grabOffset;
};

/// Moves an end of a line or arrow: Shift in steps of 15 degrees about the other end, Alt both ends about the middle.
class EndpointGesture final : public HandleGesture {
public:
    using HandleGesture::HandleGesture;
    void update(const GestureInput &input) override;
};

/// Bends an arrow.
class BendGesture final : public HandleGesture {
public:
    using HandleGesture::HandleGesture;
    void update(const GestureInput &input) override;
};

/// Gives a stamp its tail, or takes it: Shift in steps of 15 degrees.
class TailGesture final : public HandleGesture {
public:
    using HandleGesture::HandleGesture;
    void update(const GestureInput &input) override;
};

/// The gesture of a handle that was pressed at an image point.
std::unique_ptr<Gesture> handleGesture(
    EditingContext &context, const Annotation &mark, const Handle &handle, QPointF pressedAt);

} // namespace tessaly
