// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkReshaping.h"

#include "core/Annotation/AnnotationGeometry.h"
#include "core/Editing/BoxDrag.h"
#include "core/Editing/MarkTraits.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaly::MarkReshaping {

namespace {

constexpr double leastFontSize = 4, mostFontSize = 2000;

double lengthOf(QPointF vector) { return std::hypot(vector.x(), vector.y()); }

/// A position on one axis taken along with its frame. A frame without extent has no inside: all lies at its start.
double taken(double position, double from, double fromLength, double to, double toLength)
{
    return fromLength > 0 ? to + (position - from) * (toLength / fromLength) : to;
}

QPointF taken(QPointF point, const QRectF &from, const QRectF &to)
{
    return { taken(point.x(), from.left(), from.width(), to.left(), to.width()),
        taken(point.y(), from.top(), from.height(), to.top(), to.height()) };
}

/// The anchors of a box keep their corners, also where the box had no extent.
void fitAnchors(Annotation &mark, const QRectF &to)
{
    const bool rightwards = mark.p1.x() <= mark.p2.x(), downwards = mark.p1.y() <= mark.p2.y();
    const double left = to.left(), right = to.left() + to.width();
    const double top = to.top(), bottom = to.top() + to.height();
    mark.p1 = { rightwards ? left : right, downwards ? top : bottom };
    mark.p2 = { rightwards ? right : left, downwards ? bottom : top };
}

Annotation withFontSize(Annotation mark, double factor)
{
    mark.fontSize = std::clamp(mark.fontSize * factor, std::min(leastFontSize, mark.fontSize), mostFontSize);
    return mark;
}

} // namespace

Annotation moved(Annotation mark, QPointF by)
{
    mark.p1 += by;
    mark.p2 += by;
    for (QPointF &point : mark.points)
        point += by;
    return mark;
}

Annotation fitted(Annotation mark, const QRectF &from, const QRectF &to)
{
    if (traitsOf(mark.kind).form == MarkForm::Path) {
        for (QPointF &point : mark.points)
            point = taken(point, from, to);
        updateAnchors(mark);
    } else {
        fitAnchors(mark, to);
    }
    return mark;
}

Annotation scaledText(Annotation mark, double factor, HandleRole fixed, TextGeometry &text)
{
    const QPointF place = pointOn(text.box(mark), fixed);
    Annotation scaled = withFontSize(std::move(mark), factor);
    return moved(scaled, place - pointOn(text.box(scaled), fixed));
}

Annotation scaledTextAboutCentre(Annotation mark, double factor, TextGeometry &text)
{
    const QPointF centre = text.box(mark).center();
    Annotation scaled = withFontSize(std::move(mark), factor);
    return moved(scaled, centre - text.box(scaled).center());
}

QPointF inSteps(QPointF point, QPointF centre)
{
    constexpr double step = std::numbers::pi / 12;
    const QPointF offset = point - centre;
    const double angle = std::round(std::atan2(offset.y(), offset.x()) / step) * step;
    const QPointF direction(std::cos(angle), std::sin(angle));
    return centre + direction * QPointF::dotProduct(offset, direction);
}

Annotation withEnd(Annotation mark, HandleRole end, QPointF point)
{
    const bool isStart = end == HandleRole::Start;
    const QPointF other = isStart ? mark.p2 : mark.p1, before = isStart ? mark.p1 : mark.p2;
    if (lengthOf(point - other) < 1) {
        const QPointF direction = before - other;
        const double length = lengthOf(direction);
        point = other + (length > 0 ? direction / length : QPointF(1, 0));
    }
    (isStart ? mark.p1 : mark.p2) = point;
    return mark;
}

Annotation bentThrough(Annotation arrow, QPointF point)
{
    if (const auto handle = AnnotationGeometry::handleAt(arrow.p1, arrow.p2, point)) {
        arrow.curved = true;
        arrow.curveHandle = *handle;
    }
    return arrow;
}

Annotation straightened(Annotation arrow)
{
    arrow.curved = false;
    arrow.curveHandle = Annotation(QUuid()).curveHandle; // bent anew, it bends as a new one
    return arrow;
}

Annotation withTailTo(Annotation stamp, QPointF point)
{
    const QRectF body = stamp.rect();
    if (body.contains(point)) {
        stamp.tailAngle.reset();
        return stamp;
    }
    const QPointF offset = point - body.center();
    stamp.tailAngle = std::atan2(offset.y(), offset.x());
    stamp.tailLength = lengthOf(offset);
    return stamp;
}

void updateAnchors(Annotation &pen)
{
    const QRectF box = AnnotationGeometry::boundingBox(pen.points);
    pen.p1 = box.topLeft();
    pen.p2 = box.bottomRight();
}

} // namespace tessaly::MarkReshaping
