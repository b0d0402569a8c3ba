// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/EditingContext.h"

namespace tessaly {

/// A mark of no size in the style of new marks. A number stamp takes the next number, and the store counts on.
Annotation newMark(AnnotationKind kind, QPointF at, AnnotationStore &store);

/// The same mark under a new identity; a number stamp again takes the next number.
Annotation copyOf(const Annotation &mark, AnnotationStore &store);

/// Puts a mark where the tool was clicked, as one undo step, and selects it: a stamp or sticker as large as the last
/// one, a dot of the pen, an empty text whose first line the click lies in. The new mark; empty for another kind.
std::optional<QUuid> placeMark(AnnotationKind kind, QPointF at, EditingContext &context);

} // namespace tessaly
