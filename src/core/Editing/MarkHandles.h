// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Editing/CanvasAdornments.h"
#include "core/Editing/CanvasTransform.h"

/// The handles of a mark: where they are and which one is under the pointer.
namespace tessaly::MarkHandles {

/// Screen pixels: below this a mark has no side handles, and those at its corners keep outside.
inline constexpr double smallMark = 24;

/// Screen pixels from a handle's middle, each way, within which it is grabbed with a mouse.
inline constexpr double grabReach = 7;

/// Of a box, the eight or, when it is small, the four outside its corners.
QList<Handle> ofBox(const QRectF &box, const CanvasTransform &transform);

/// Of a mark whose frame is known.
QList<Handle> of(const Annotation &mark, const QRectF &frame, const CanvasTransform &transform);

/// Where a handle is seen.
QPointF viewPosition(const Handle &handle, const CanvasTransform &transform);

/// The handle nearest to a view position, within reach.
std::optional<Handle> at(const QList<Handle> &handles, QPointF view, const CanvasTransform &transform, double scale);

/// The pointer over a handle. `proportions` are those of a box that keeps them, whose corners move along its
/// diagonal; otherwise they move at 45 degrees.
CursorShape cursor(HandleRole role, std::optional<QSizeF> proportions);

} // namespace tessaly::MarkHandles
