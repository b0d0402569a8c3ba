// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Editing/CanvasAdornments.h"
#include "core/Rendering/TextGeometry.h"

/// Marks in another place or another shape. Pure functions in image points, but for the measuring of texts.
namespace tessaly::MarkReshaping {

Annotation moved(Annotation mark, QPointF by);

/// A box or path mark taken along from one frame into another, which may be flipped (of negative size).
Annotation fitted(Annotation mark, const QRectF &from, const QRectF &to);

/// A text with its letters `factor` times as large, its point `fixed` (a place on its box) staying where it is.
Annotation scaledText(Annotation mark, double factor, HandleRole fixed, TextGeometry &text);
/// The same with its centre staying.
Annotation scaledTextAboutCentre(Annotation mark, double factor, TextGeometry &text);

/// A point moved about `centre` to the nearest direction that is a multiple of 15 degrees.
QPointF inSteps(QPointF point, QPointF centre);

/// A line with one end moved; the line keeps a length of at least one point.
Annotation withEnd(Annotation mark, HandleRole end, QPointF point);

/// An arrow bent through a point, and a straight one.
Annotation bentThrough(Annotation arrow, QPointF point);
Annotation straightened(Annotation arrow);

/// A stamp whose tail points at a place; a place in its body takes the tail away.
Annotation withTailTo(Annotation stamp, QPointF point);

/// A pen's anchors are the corners of its path's box.
void updateAnchors(Annotation &pen);

} // namespace tessaly::MarkReshaping
