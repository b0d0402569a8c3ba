// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/BoxDrag.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessaly {

namespace {

/// By the first eight roles.
constexpr std::array directions { QPoint(-1, -1), QPoint(0, -1), QPoint(1, -1), QPoint(1, 0), QPoint(1, 1),
    QPoint(0, 1), QPoint(-1, 1), QPoint(-1, 0) };

/// One axis of the box while it is dragged. Lengths are signed: negative is flipped.
struct Axis {
    double start, length; ///< before the drag
    int direction; ///< of the handle: 0 when this axis is not dragged
    bool aboutCentre;

    double centre() const { return start + length / 2; }
    bool isCentred() const { return aboutCentre || direction == 0; }
    double fixed() const { return isCentred() ? centre() : direction > 0 ? start : start + length; }

    double lengthTo(double to) const
    {
        if (direction == 0)
            return length;
        return (to - fixed()) * direction * (aboutCentre ? 2 : 1) + 0.0; // never a negative zero
    }

    /// The longest that fits between the limits on the side towards which `signedLength` grows.
    double room(double signedLength, double low, double high) const
    {
        if (isCentred())
            return 2 * std::min(fixed() - low, high - fixed());
        const bool upwards = std::signbit(signedLength) != (direction > 0);
        return upwards ? high - fixed() : fixed() - low;
    }

    /// Where the box starts once it has this length.
    double startFor(double signedLength) const
    {
        if (isCentred())
            return fixed() - signedLength / 2;
        return direction > 0 ? fixed() : fixed() - signedLength;
    }
};

double atLeast(double signedLength, double least)
{
    return std::copysign(std::max(std::abs(signedLength), least), signedLength);
}

double atMost(double signedLength, double most)
{
    return std::copysign(std::min(std::abs(signedLength), std::max(most, 0.0)), signedLength);
}

} // namespace

QPoint directionOf(HandleRole role)
{
    const auto index = static_cast<std::size_t>(role);
    return index < directions.size() ? directions[index] : QPoint();
}

HandleRole roleTowards(QPoint direction)
{
    return static_cast<HandleRole>(std::ranges::find(directions, direction) - directions.begin());
}

bool isCorner(HandleRole role) { return directionOf(role).x() != 0 && directionOf(role).y() != 0; }

QPointF pointOn(const QRectF &box, HandleRole role)
{
    const QPoint direction = directionOf(role);
    return box.center() + QPointF(direction.x() * box.width() / 2, direction.y() * box.height() / 2);
}

QRectF BoxDrag::draggedTo(QPointF to) const
{
    const QPoint direction = directionOf(role);
    const Axis x { start.left(), start.width(), direction.x(), aboutCentre };
    const Axis y { start.top(), start.height(), direction.y(), aboutCentre };
    double width = atLeast(x.lengthTo(to.x()), least), height = atLeast(y.lengthTo(to.y()), least);
    if (ratio) {
        const double wanted = direction.y() == 0 ? std::abs(width)
            : direction.x() == 0                 ? std::abs(height) * *ratio
                                                 : std::max(std::abs(width), std::abs(height) * *ratio);
        width = std::copysign(std::max(wanted, least * std::max(1.0, *ratio)), width);
        height = std::copysign(std::abs(width) / *ratio, height);
    }
    if (within) {
        const double roomX = x.room(width, within->left(), within->right());
        const double roomY = y.room(height, within->top(), within->bottom());
        width = atMost(width, ratio ? std::min(roomX, roomY * *ratio) : roomX);
        height = atMost(height, ratio ? std::abs(width) / *ratio : roomY);
    }
    return { x.startFor(width), y.startFor(height), width, height };
}

HandleRole roleAfter(HandleRole role, const QRectF &dragged)
{
    const QPoint direction = directionOf(role);
    return roleTowards({ dragged.width() < 0 ? -direction.x() : direction.x(),
        dragged.height() < 0 ? -direction.y() : direction.y() });
}

} // namespace tessaly
