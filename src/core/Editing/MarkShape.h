// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Rendering/TextGeometry.h"

/// Where marks lie on the canvas, as the eye sees them. Image points.
namespace tessaly::MarkShape {

/// The box that handles sit on and that snaps: without the width of strokes, tails and captions.
QRectF frame(const Annotation &mark, TextGeometry &text);

/// All that the mark covers.
QRectF visibleBox(const Annotation &mark, TextGeometry &text);

/// From the point to the nearest visible part of the mark; 0 on it. An outlined shape is seen by its stroke alone.
double distance(const Annotation &mark, QPointF point, TextGeometry &text);

/// Whether the point lies inside the outline of a shape that is not filled.
bool isInsideOutline(const Annotation &mark, QPointF point);

} // namespace tessaly::MarkShape
