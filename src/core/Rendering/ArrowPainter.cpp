// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/AnnotationGeometry.h"
#include "core/Imaging/ColorHex.h"
#include "core/Rendering/MarkPainters.h"
#include "core/Rendering/Strokes.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tessaly {

namespace {

double lengthOf(QPointF vector) { return std::hypot(vector.x(), vector.y()); }
QPointF normalOf(QPointF direction) { return { -direction.y(), direction.x() }; }

QPointF unitOr(QPointF vector, QPointF fallback)
{
    const double length = lengthOf(vector);
    return length < 0.001 ? fallback : vector / length;
}

/// Points; the minimums keep the head of a thin arrow visible.
struct TaperedSize {
    double headLength, headWidth, shaftHalf;
    explicit TaperedSize(double width) :
        headLength(std::max(width * 3.4, 18.0)),
        headWidth(std::max(width * 3.6, 16.0)),
        shaftHalf(std::max(width * 1.05, 3.5))
    {
    }
};

/// The three corners of a head: a wing, the tip, the other wing. `direction` points at the tip.
QList<QPointF> headCorners(QPointF tip, QPointF direction, double length, double width)
{
    const QPointF base = tip - direction * length, reach = normalOf(direction) * (width / 2);
    return { base + reach, tip, base - reach };
}

/// The head of the styles other than tapered.
QPainterPath headShape(ArrowHeadStyle style, QPointF tip, QPointF direction, double length, double lineWidth)
{
    QList<QPointF> corners = headCorners(tip, direction, length, std::max(lineWidth * 2.6, 11.0));
    if (style == ArrowHeadStyle::Open)
        return Strokes::outline(corners, { lineWidth });
    if (style == ArrowHeadStyle::Concave)
        corners += tip - direction * (length * 0.55);
    return Strokes::polygon(corners);
}

/// How far the shaft stays behind the tip, so that it does not show beside it.
double shaftInset(ArrowHeadStyle style, double headLength, double lineWidth)
{
    return style == ArrowHeadStyle::Open ? lineWidth * 0.5 : headLength * 0.85;
}

QPainterPath straightArrow(const Annotation &mark)
{
    const QPointF from = mark.p1, to = mark.p2;
    const double width = mark.lineWidth;
    const QPointF direction = (to - from) / std::max(lengthOf(to - from), 0.001);
    if (mark.arrowHead == ArrowHeadStyle::Tapered) {
        const TaperedSize size(width);
        const QPointF base = to - direction * size.headLength, half = normalOf(direction) * size.shaftHalf;
        const auto head = headCorners(to, direction, size.headLength, size.headWidth);
        return Strokes::polygon({ from, base + half, head[0], head[1], head[2], base - half });
    }
    const double headLength = width * 3.0;
    QPainterPath shape
        = Strokes::outline(QList { from, to - direction * shaftInset(mark.arrowHead, headLength, width) }, { width });
    Strokes::unite(shape, headShape(mark.arrowHead, to, direction, headLength, width));
    return shape;
}

/// An arrow that follows points: a curve, or a straight line with two heads.
struct ArrowPath {
    QList<QPointF> points;
    QPointF startDirection; ///< outwards, at p1
    QPointF endDirection; ///< outwards, at p2
};

ArrowPath pathOf(const Annotation &mark)
{
    const QPointF chord = unitOr(mark.p2 - mark.p1, { 1, 0 });
    const QPointF control
        = mark.curved ? AnnotationGeometry::controlPoint(mark.p1, mark.p2, mark.curveHandle) : (mark.p1 + mark.p2) / 2;
    return { mark.curved ? mark.curveSamples(AnnotationGeometry::curveSegments) : QList { mark.p1, mark.p2 },
        unitOr(mark.p1 - control, -chord), unitOr(mark.p2 - control, chord) };
}

/// Where each point lies along the polyline, 0 at its start and 1 at its end.
QList<double> positionsAlong(const QList<QPointF> &points)
{
    QList<double> along { 0 };
    for (int index = 1; index < points.size(); ++index)
        along += along.last() + lengthOf(points[index] - points[index - 1]);
    const double total = std::max(along.last(), 0.0001);
    for (double &position : along)
        position /= total;
    return along;
}

QPainterPath taperedAlong(const Annotation &mark, const ArrowPath &path)
{
    const TaperedSize size(mark.lineWidth);
    const auto shaft
        = AnnotationGeometry::trimmed(path.points, mark.doubleHeaded ? size.headLength : 0, size.headLength);
    const auto along = positionsAlong(shaft);
    QList<QPointF> left, right;
    for (int index = 0; index < shaft.size(); ++index) {
        const QPointF before = shaft[std::max(index - 1, 0)];
        const QPointF after = shaft[std::min<qsizetype>(index + 1, shaft.size() - 1)];
        const double share = mark.doubleHeaded ? std::abs(2 * along[index] - 1) * 0.45 + 0.55 : along[index];
        const QPointF half = normalOf(unitOr(after - before, path.endDirection)) * (size.shaftHalf * share);
        left += shaft[index] + half;
        right.prepend(shaft[index] - half);
    }
    QList<QPointF> corners = left + headCorners(mark.p2, path.endDirection, size.headLength, size.headWidth) + right;
    if (mark.doubleHeaded)
        corners += headCorners(mark.p1, path.startDirection, size.headLength, size.headWidth);
    return Strokes::polygon(corners);
}

QPainterPath strokedAlong(const Annotation &mark, const ArrowPath &path)
{
    const double width = mark.lineWidth, headLength = std::max(width * 3, 14.0);
    const double inset = shaftInset(mark.arrowHead, headLength, width);
    const auto shaft = AnnotationGeometry::trimmed(path.points, mark.doubleHeaded ? inset : 0, inset);
    QPainterPath shape = Strokes::outline(shaft, { width });
    Strokes::unite(shape, headShape(mark.arrowHead, mark.p2, path.endDirection, headLength, width));
    if (mark.doubleHeaded)
        Strokes::unite(shape, headShape(mark.arrowHead, mark.p1, path.startDirection, headLength, width));
    return shape;
}

} // namespace

void prepareArrow(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    QPainterPath shape;
    if (!mark.curved && !mark.doubleHeaded) {
        shape = straightArrow(mark);
    } else {
        const ArrowPath path = pathOf(mark);
        shape = mark.arrowHead == ArrowHeadStyle::Tapered ? taperedAlong(mark, path) : strokedAlong(mark, path);
    }
    out.fill(Strokes::within(shape, context.paintable), ColorHex::toColor(mark.colorHex));
}

} // namespace tessaly
