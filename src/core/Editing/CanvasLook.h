// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/CanvasAdornments.h"
#include "core/Editing/EditingContext.h"
#include "core/Editing/Gesture.h"

namespace tessaly {

/// What the pointer hovers over, when it does.
struct HoverState {
    std::optional<QPointF> view; ///< empty when it is elsewhere, or a finger
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

/// What is drawn over the capture, and the pointer over it, both while nothing is dragged and during `gesture` (or
/// null).
CanvasAdornments adornmentsFor(EditingContext &context, const HoverState &hover, const Gesture *gesture);
CursorShape cursorFor(
    EditingContext &context, const HoverState &hover, const Gesture *gesture, const CanvasAdornments &adornments);

} // namespace tessaly
