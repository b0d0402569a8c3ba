// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/CanvasAdornments.h"

#include <QCursor>

namespace tessaly {

/// The pointer for a shape; resize arrows are drawn for `devicePixelRatio` where no stock arrow has their angle.
QCursor cursorFor(const CursorShape &shape, double devicePixelRatio);

} // namespace tessaly
