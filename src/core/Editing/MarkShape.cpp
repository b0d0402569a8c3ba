// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkShape.h"

#include "core/Annotation/AnnotationGeometry.h"
#include "core/Editing/MarkTraits.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaly::MarkShape {

namespace {

using Kind = AnnotationKind;

double length(QPointF vector) { return std::hypot(vector.x(), vector.y()); }

double distanceToBox(QPointF point, const QRectF &box)
{
    const double x = std::max({ box.left() - point.x(), 0.0, point.x() - box.right() });
    const double y = std::max({ box.top() - point.y(), 0.0, point.y() - box.bottom() });
    return std::hypot(x, y);
}

double distanceToPolyline(QPointF point, const QList<QPointF> &points)
{
    if (points.isEmpty())
        return std::numeric_limits<double>::infinity();
    double least = length(point - points.first());
    for (qsizetype index = 1; index < points.size(); ++index)
        least = std::min(least, AnnotationGeometry::distance(point, points[index - 1], points[index]));
    return least;
}

double distanceToPolygon(QPointF point, QList<QPointF> corners)
{
    if (QPolygonF(corners).containsPoint(point, Qt::WindingFill))
        return 0;
    corners += corners.first();
    return distanceToPolyline(point, corners);
}

bool isInEllipse(QPointF point, const QRectF &box)
{
    if (box.isEmpty())
        return false;
    const QPointF offset = point - box.center();
    return std::hypot(offset.x() / (box.width() / 2), offset.y() / (box.height() / 2)) <= 1;
}

double distanceToEllipseLine(QPointF point, const QRectF &box)
{
    constexpr int sides = 72; // within a thousandth of the radius
    QList<QPointF> outline;
    for (int side = 0; side <= sides; ++side) {
        const double angle = 2 * std::numbers::pi * side / sides;
        outline += box.center() + QPointF(std::cos(angle) * box.width() / 2, std::sin(angle) * box.height() / 2);
    }
    return distanceToPolyline(point, outline);
}

double distanceToEllipse(QPointF point, const QRectF &box)
{
    return isInEllipse(point, box) ? 0 : distanceToEllipseLine(point, box);
}

double distanceToRectangleLine(QPointF point, const QRectF &box)
{
    return distanceToPolyline(
        point, { box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft(), box.topLeft() });
}

double beyondStroke(double distance, const Annotation &mark) { return std::max(distance - mark.lineWidth / 2, 0.0); }

/// Half the width of an arrow's head, and its length.
QSizeF headSize(const Annotation &arrow)
{
    const bool isTapered = arrow.arrowHead == ArrowHeadStyle::Tapered;
    return isTapered ? QSizeF(std::max(arrow.lineWidth * 3.4, 18.0), std::max(arrow.lineWidth * 3.6, 16.0) / 2)
                     : QSizeF(arrow.lineWidth * 3, std::max(arrow.lineWidth * 2.6, 11.0) / 2);
}

double distanceToHead(QPointF point, QPointF tip, QPointF behind, QSizeF size)
{
    const QPointF along = (tip - behind) / std::max(length(tip - behind), 0.001);
    const QPointF base = tip - along * size.width(), reach = QPointF(-along.y(), along.x()) * size.height();
    return distanceToPolygon(point, { tip, base + reach, base - reach });
}

QList<QPointF> lineOf(const Annotation &mark)
{
    return mark.kind == Kind::Arrow && mark.curved ? mark.curveSamples() : QList { mark.p1, mark.p2 };
}

double distanceToArrow(const Annotation &arrow, QPointF point)
{
    const QList<QPointF> line = lineOf(arrow);
    double least = beyondStroke(distanceToPolyline(point, line), arrow);
    const QSizeF head = headSize(arrow);
    least = std::min(least, distanceToHead(point, arrow.p2, line[line.size() - 2], head));
    if (arrow.doubleHeaded)
        least = std::min(least, distanceToHead(point, arrow.p1, line[1], head));
    return least;
}

double distanceToStamp(const Annotation &stamp, QPointF point)
{
    const QRectF box = stamp.rect();
    const bool isRound = stamp.disc.value_or(stamp.stamp == StampKind::Number) || stamp.stamp == StampKind::Dot;
    double least = isRound ? distanceToEllipse(point, box) : distanceToBox(point, box);
    if (const auto label = stamp.stampLabelRect())
        least = std::min(least, distanceToBox(point, *label));
    if (const auto tip = stamp.tailTip())
        least = std::min(least, AnnotationGeometry::distance(point, box.center(), *tip));
    return least;
}

bool isOutlined(const Annotation &mark)
{
    return (mark.kind == Kind::Rectangle || mark.kind == Kind::Ellipse) && !mark.filled;
}

bool isElliptic(const Annotation &mark)
{
    return mark.kind == Kind::Ellipse || (mark.kind == Kind::Spotlight && mark.spotEllipse)
        || (mark.kind == Kind::Magnifier && mark.magnifierRound);
}

double distanceToBoxMark(const Annotation &mark, QPointF point)
{
    const QRectF box = mark.rect();
    if (isOutlined(mark)) {
        const bool isEllipse = isElliptic(mark);
        return beyondStroke(isEllipse ? distanceToEllipseLine(point, box) : distanceToRectangleLine(point, box), mark);
    }
    return isElliptic(mark) ? distanceToEllipse(point, box) : distanceToBox(point, box);
}

QRectF united(const QRectF &box, const QRectF &other)
{
    return AnnotationGeometry::boundingBox({ box.topLeft(), box.bottomRight(), other.topLeft(), other.bottomRight() });
}

QRectF grown(const QRectF &box, double by) { return box.adjusted(-by, -by, by, by); }

} // namespace

QRectF frame(const Annotation &mark, TextGeometry &text)
{
    switch (traitsOf(mark.kind).form) {
    case MarkForm::Text:
        return text.box(mark);
    case MarkForm::Path:
        return AnnotationGeometry::boundingBox(mark.points);
    case MarkForm::Line:
        return AnnotationGeometry::boundingBox(lineOf(mark));
    case MarkForm::Box:
        break;
    }
    return mark.rect();
}

QRectF visibleBox(const Annotation &mark, TextGeometry &text)
{
    QRectF box = frame(mark, text);
    if (mark.kind == Kind::Arrow)
        return grown(box, headSize(mark).height());
    if (mark.kind == Kind::Line || mark.kind == Kind::Pen || isOutlined(mark))
        return grown(box, mark.lineWidth / 2);
    if (const auto label = mark.stampLabelRect())
        box = united(box, *label);
    if (const auto tip = mark.tailTip())
        box = united(box, { *tip, QSizeF() });
    return box;
}

double distance(const Annotation &mark, QPointF point, TextGeometry &text)
{
    switch (mark.kind) {
    case Kind::Arrow:
        return distanceToArrow(mark, point);
    case Kind::Line:
        return beyondStroke(AnnotationGeometry::distance(point, mark.p1, mark.p2), mark);
    case Kind::Pen:
        return beyondStroke(distanceToPolyline(point, mark.points), mark);
    case Kind::Text:
        return distanceToBox(point, text.box(mark));
    case Kind::Stamp:
        return distanceToStamp(mark, point);
    default:
        return distanceToBoxMark(mark, point);
    }
}

bool isInsideOutline(const Annotation &mark, QPointF point)
{
    if (!isOutlined(mark))
        return false;
    return isElliptic(mark) ? isInEllipse(point, mark.rect()) : mark.rect().contains(point);
}

} // namespace tessaly::MarkShape
