// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationKinds.h"

#include <QPainterPath>
#include <QRectF>

/// The drawn glyphs of stamps, as filled shapes.
namespace tessaly::StampGlyphs {

/// How much of its box a glyph takes: on a disc it keeps away from the rim.
enum class Room { OnDisc, WholeBox };

/// A tick of a short and a long stroke, and two crossing strokes. `strokeWidth` is in points.
QPainterPath check(const QRectF &box, double strokeWidth, Room room);
QPainterPath cross(const QRectF &box, double strokeWidth, Room room);

QPainterPath dot(const QRectF &box, Room room);

/// A five-pointed star, point up, about the box's middle.
QPainterPath starPath(const QRectF &box, Room room);

} // namespace tessaly::StampGlyphs
