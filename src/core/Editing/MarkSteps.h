// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Rendering/TextGeometry.h"

namespace tessaly {

/// The mark with its right and bottom edge, or its end, moved by a step of the arrow keys.
Annotation withFarEdgeMoved(const Annotation &mark, QPointF step, TextGeometry &text);

} // namespace tessaly
