// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QRect>

#include <array>
#include <optional>
#include <variant>

namespace tessaly {

/// The grips of a selection.
enum class Handle { TopLeft, TopRight, BottomLeft, BottomRight, Top, Bottom, Left, Right };
inline constexpr std::array allHandles { Handle::TopLeft, Handle::TopRight, Handle::BottomLeft, Handle::BottomRight,
    Handle::Top, Handle::Bottom, Handle::Left, Handle::Right };

/// The rectangle that is being chosen on one monitor: made, moved, resized and nudged. Everything is in that monitor's
/// device pixels, origin at its top left, y downward; lengths that a person feels are points times `scale`.
class SelectionModel {
public:
    static constexpr double handlePoints = 12; ///< side of a grip's square
    static constexpr double roomyPoints = 2 * handlePoints; ///< below that, along an axis, grips make room
    static constexpr double smallestPoints = 4; ///< below that, either way, nothing is selected
    static constexpr double stepPoints = 10;
    static constexpr double largeStepPoints = 20;
    static constexpr double leastResizedPoints = 10; ///< that the arrow keys leave, either way
    static constexpr double freshSidePoints = 240; ///< of the square that the first arrow key makes

    /// What held keys make of a drag.
    struct Constraint {
        bool square = false; ///< while creating, and at a corner
        bool fromCentre = false; ///< the first point, or the centre of what is resized, stays the centre
        bool moves = false; ///< the unfinished rectangle follows the pointer as it is
    };

    SelectionModel(QSize pixelSize, double scale) : m_pixelSize(pixelSize), m_scale(scale) { }

    /// The left edge, top edge, and the edges after the last pixels: a drag from pixel 3 to pixel 5 is 2 wide. The
    /// monitor's last pixel stands for the edge after it, which no pointer reaches.
    const QRect &pixelRect() const { return m_pixelRect; }
    QSize pixelSize() const { return m_pixelSize; }
    double scale() const { return m_scale; }

    /// Whether the selection is large enough to be captured.
    bool isValid() const;
    bool isAdjusting() const { return m_adjusting; }
    void setAdjusting(bool adjusting) { m_adjusting = adjusting; }
    void clear();
    void select(const QRect &pixelRect);

    std::optional<Handle> handleAt(QPoint pixel) const;
    /// The grip's square, in device pixels. Where the selection is short, grips lie outside, so that it can be seen
    /// and moved, and the one in the middle of a short edge is empty.
    QRect handleRect(Handle handle) const;

    /// A press begins one of the drags, a release or cancel ends it. `pixel` may lie outside the monitor while
    /// dragging; the selection never does. A release that leaves less than the least puts back what was before.
    void press(QPoint pixel);
    void drag(QPoint pixel) { drag(pixel, Constraint()); }
    void drag(QPoint pixel, Constraint constraint);
    void release();
    /// Puts back what was before the press.
    void cancelDrag();
    bool isDragging() const;

    /// An arrow key, as a direction of -1, 0 or 1; with Shift it resizes. Without a valid selection it makes the fresh
    /// square, in adjusting mode. Whether the rectangle changed.
    bool nudge(QPoint direction, bool resizes);

private:
    struct Create {
        QPoint origin;
    };
    struct Move {
        QPoint from;
        QRect original;
    };
    struct Resize {
        Handle handle;
        QPoint grabOffset; ///< from the pointer to the corner or the middle of the edge
        QRect original;
    };
    using Drag = std::variant<std::monostate, Create, Move, Resize>;

    int pixels(double points) const;
    QPoint onEdges(QPoint pixel) const;
    QPoint gripPoint(Handle handle) const;
    QRect spanned(QPoint anchor, QPoint reached, Constraint constraint) const;
    QRect moved(const QRect &rect, QPoint travel) const;
    QRect resized(const Resize &drag, QPoint pixel, Constraint constraint) const;
    QRect nudged(QPoint direction, bool resizes) const;

    QSize m_pixelSize;
    double m_scale;
    QRect m_pixelRect;
    QRect m_before; ///< when the press came
    QPoint m_pointer; ///< of the last press or drag
    bool m_adjusting = false;
    Drag m_drag;
};

} // namespace tessaly
