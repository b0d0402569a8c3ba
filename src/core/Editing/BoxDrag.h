// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/CanvasAdornments.h"

namespace tessaly {

/// The way in which a handle lies from the centre of its box: -1, 0 or 1 on each axis.
QPoint directionOf(HandleRole role);

/// The handle in that direction; only for the eight of a box.
HandleRole roleTowards(QPoint direction);

bool isCorner(HandleRole role);

/// Where a handle of a box lies on it.
QPointF pointOn(const QRectF &box, HandleRole role);

/// A box in which one handle is dragged. A new box is one without size, dragged by its bottom right corner.
struct BoxDrag {
    QRectF start;
    HandleRole role = HandleRole::BottomRight;
    std::optional<double> ratio = {}; ///< width to height, to be kept
    bool aboutCentre = false; ///< else the opposite point stays
    double least = 1; ///< of width and height, in image points
    std::optional<QRectF> within = {}; ///< which the box must not leave

    /// The box when the handle is dragged to a point. Its width or height is negative where the handle was dragged
    /// past the other side.
    QRectF draggedTo(QPointF to) const;
};

/// The handle that is under the pointer after a drag that may have flipped the box.
HandleRole roleAfter(HandleRole role, const QRectF &dragged);

} // namespace tessaly
