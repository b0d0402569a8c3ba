// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/Strokes.h"

#include <QPainterPathStroker>
#include <QPolygonF>

#include <algorithm>

namespace tessaly::Strokes {

QPainterPath outline(const QPainterPath &path, const Pen &pen)
{
    if (pen.width <= 0 || path.elementCount() == 0)
        return {};
    QPainterPath filled;
    if (path.length() <= 0) {
        const double radius = pen.width / 2;
        if (pen.cap == Qt::RoundCap)
            filled.addEllipse(QPointF(path.elementAt(0)), radius, radius);
        return filled;
    }
    QPainterPathStroker stroker;
    stroker.setWidth(pen.width);
    stroker.setCapStyle(pen.cap);
    stroker.setJoinStyle(pen.join);
    stroker.setMiterLimit(10);
    stroker.setCurveThreshold(0.01); // a coarser one makes a round stroke visibly thinner
    filled = stroker.createStroke(path);
    filled.setFillRule(Qt::WindingFill);
    return filled;
}

QPainterPath outline(const QList<QPointF> &polyline, const Pen &pen)
{
    QPainterPath path;
    if (polyline.isEmpty())
        return path;
    path.reserve(static_cast<int>(polyline.size()) + 1);
    path.moveTo(polyline.first());
    for (const QPointF &point : polyline)
        path.lineTo(point);
    return outline(path, pen);
}

QPainterPath polygon(const QList<QPointF> &corners)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(corners));
    path.closeSubpath();
    path.setFillRule(Qt::WindingFill);
    return path;
}

/// Twice the area that the path runs around; positive when clockwise on a canvas with y downwards.
static double signedArea(const QPainterPath &path)
{
    double sum = 0;
    const auto polygons = path.toSubpathPolygons();
    for (const QPolygonF &corners : polygons) {
        for (int index = 0; index < corners.size(); ++index) {
            const QPointF a = corners[index], b = corners[(index + 1) % corners.size()];
            sum += a.x() * b.y() - b.x() * a.y();
        }
    }
    return sum;
}

void unite(QPainterPath &path, const QPainterPath &piece)
{
    const bool turnsTheSameWay = path.isEmpty() || (signedArea(path) < 0) == (signedArea(piece) < 0);
    path.setFillRule(Qt::WindingFill);
    path.addPath(turnsTheSameWay ? piece : piece.toReversed());
}

/// The polygon cut at one edge of the bounds: `inside` is positive on the side that stays.
template <class Distance>
static QPolygonF cut(const QPolygonF &corners, Distance inside)
{
    QPolygonF kept;
    for (int index = 0; index < corners.size(); ++index) {
        const QPointF from = corners[index], to = corners[(index + 1) % corners.size()];
        const double a = inside(from), b = inside(to);
        if (a >= 0)
            kept += from;
        if ((a >= 0) != (b >= 0))
            kept += from + (to - from) * (a / (a - b));
    }
    return kept;
}

QPainterPath within(const QPainterPath &path, const QRectF &bounds)
{
    if (bounds.contains(path.controlPointRect()))
        return path;
    QPainterPath result;
    result.setFillRule(path.fillRule());
    const auto polygons = path.toSubpathPolygons();
    for (QPolygonF corners : polygons) {
        corners = cut(corners, [&](QPointF point) { return point.x() - bounds.left(); });
        corners = cut(corners, [&](QPointF point) { return bounds.right() - point.x(); });
        corners = cut(corners, [&](QPointF point) { return point.y() - bounds.top(); });
        corners = cut(corners, [&](QPointF point) { return bounds.bottom() - point.y(); });
        result.addPolygon(corners);
        result.closeSubpath();
    }
    return result;
}

} // namespace tessaly::Strokes
