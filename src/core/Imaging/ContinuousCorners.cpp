// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ContinuousCorners.h"

#include <array>
#include <cmath>

namespace tessaly {

namespace {

/// x³ + y³ = 1: its curvature starts at 0 on the straight side and rises in proportion to the distance from it.
constexpr double exponent = 3;

/// How far the corner reaches along its sides, in radii: its middle is as far from the sharp corner as the circle's.
const double reach = (1 - std::sqrt(0.5)) / (1 - std::pow(0.5, 1 / exponent));

constexpr int segmentsPerHalf = 4;

struct CubicSegment {
    QPointF control1, control2, end;
};

using CornerArc = std::array<CubicSegment, 2 * segmentsPerHalf>;

QPointF swapped(QPointF point) { return { point.y(), point.x() }; }

/// The quarter from (0, 1) to (1, 0). Each segment meets the curve and its slope at both ends, which keeps it within
/// a ten-thousandth of the reach.
CornerArc unitArc()
{
    const double step = std::pow(0.5, 1 / exponent) / segmentsPerHalf;
    const auto height = [](double x) { return std::pow(1 - std::pow(x, exponent), 1 / exponent); };
    const auto towards = [&](double x, double dx) {
        const double slope = -std::pow(x / height(x), exponent - 1);
        return QPointF(x + dx, std::min(height(x) + slope * dx, 1.0)); // never beyond the side
    };
    CornerArc arc;
    for (int index = 0; index < segmentsPerHalf; ++index) {
        const double from = index * step, to = from + step;
        const QPointF start(from, height(from)), end(to, height(to));
        const QPointF control1 = towards(from, step / 3), control2 = towards(to, -step / 3);
        arc[index] = { control1, control2, end };
        arc[arc.size() - 1 - index] = { swapped(control2), swapped(control1), swapped(start) };
    }
    return arc;
}

} // namespace

QPainterPath continuousCornerPath(const QRectF &rect, double radius)
{
    const QRectF box = rect.normalized();
    QPainterPath path;
    const double side = std::min({ radius * reach, box.width() / 2, box.height() / 2 });
    if (!(radius > 0) || !(side > 0)) {
        path.addRect(box);
        return path;
    }
    const CornerArc arc = unitArc();
    const auto addCorner = [&](QPointF centre, QPointF right, QPointF up) {
        const auto placed = [&](QPointF point) { return centre + right * point.x() + up * point.y(); };
        path.lineTo(centre + up);
        for (const CubicSegment &segment : arc)
            path.cubicTo(placed(segment.control1), placed(segment.control2), placed(segment.end));
    };
    const QRectF centres = box.adjusted(side, side, -side, -side);
    const QPointF across(side, 0), down(0, side);
    path.moveTo(centres.topLeft() - down);
    addCorner(centres.topRight(), across, -down);
    addCorner(centres.bottomRight(), down, across);
    addCorner(centres.bottomLeft(), -across, down);
    addCorner(centres.topLeft(), -down, -across);
    path.closeSubpath();
    return path;
}

} // namespace tessaly
