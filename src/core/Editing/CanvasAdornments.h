// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineF>
#include <QList>
#include <QPointF>
#include <QRectF>

#include <optional>

namespace tessaly {

/// A point by which a mark, or the crop rectangle, is reshaped. The first eight run clockwise from the corner.
enum class HandleRole { TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left, Start, End, Bend, Tail };

struct Handle {
    HandleRole role = HandleRole::TopLeft;
    QPointF position; ///< image points
    QPointF viewOffset; ///< view pixels beyond that, for handles that keep outside a small mark

    bool operator==(const Handle &) const = default;
};

/// What is drawn over the capture while it is edited, in image points.
struct CanvasAdornments {
    QList<Handle> handles;
    std::optional<QRectF> outline; ///< of the selected mark, where it is no line
    std::optional<QRectF> hovered; ///< of the mark that a click would select
    QList<QLineF> guides; ///< that the mark in hand snapped to
    std::optional<QRectF> crop; ///< the crop rectangle while cropping; its thirds are drawn while it is dragged
    bool dragging = false;
    double handleScale = 1; ///< 1.7 after a finger or pen

    bool operator==(const CanvasAdornments &) const = default;
};

/// The pointer's shapes over the canvas.
enum class CanvasCursor { Arrow, Cross, Text, PointingHand, FourWay, ClosedHand, DragCopy, Resize, CrossArrow };

/// The shape with, for Resize, the direction of the handle's movement on the screen in degrees from the
/// horizontal, clockwise, from 0 up to 180.
struct CursorShape {
    CanvasCursor cursor = CanvasCursor::Arrow;
    double angle = 0;

    bool operator==(const CursorShape &) const = default;
};

} // namespace tessaly
