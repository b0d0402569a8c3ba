// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkHandles.h"

#include "core/Annotation/AnnotationGeometry.h"
#include "core/Editing/BoxDrag.h"
#include "core/Editing/MarkTraits.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaly::MarkHandles {

namespace {

/// Screen pixels between a small mark and its handles.
constexpr double outside = 9;

/// Screen pixels below a stamp at which the handle waits that draws out its tail.
constexpr double tailDistance = 26;

QList<Handle> ofLine(const Annotation &mark, const CanvasTransform &transform)
{
    const QPointF along = transform.toView(mark.p2) - transform.toView(mark.p1);
    const double length = std::hypot(along.x(), along.y());
    const bool isSmall = length < smallMark;
    const QPointF outwards = !isSmall ? QPointF() : length > 0 ? along / length * outside : QPointF(outside, 0);
    QList<Handle> handles { { HandleRole::Start, mark.p1, -outwards }, { HandleRole::End, mark.p2, outwards } };
    if (mark.kind == AnnotationKind::Arrow && !isSmall) {
        const QPointF middle = mark.curved ? AnnotationGeometry::handlePoint(mark.p1, mark.p2, mark.curveHandle)
                                           : (mark.p1 + mark.p2) / 2;
        handles += Handle { HandleRole::Bend, middle, {} };
    }
    return handles;
}

Handle tailOf(const Annotation &stamp)
{
    if (const auto tip = stamp.tailTip())
        return { HandleRole::Tail, *tip, {} };
    return { HandleRole::Tail, pointOn(stamp.rect(), HandleRole::Bottom), { 0, tailDistance } };
}

QList<Handle> cornersOf(QList<Handle> handles)
{
    handles.removeIf([](const Handle &handle) { return !isCorner(handle.role); });
    return handles;
}

} // namespace

QList<Handle> ofBox(const QRectF &box, const CanvasTransform &transform)
{
    const bool isSmall = std::min(box.width(), box.height()) * transform.scale < smallMark;
    QList<Handle> handles;
    for (int index = 0; index < 8; ++index) {
        const auto role = static_cast<HandleRole>(index);
        const QPointF offset = isSmall ? QPointF(directionOf(role)) * outside : QPointF();
        if (!isSmall || isCorner(role))
            handles += Handle { role, pointOn(box, role), offset };
    }
    return handles;
}

QList<Handle> of(const Annotation &mark, const QRectF &frame, const CanvasTransform &transform)
{
    switch (traitsOf(mark.kind).form) {
    case MarkForm::Line:
        return ofLine(mark, transform);
    case MarkForm::Text:
        return cornersOf(ofBox(frame, transform));
    case MarkForm::Path:
        return frame.isNull() ? QList<Handle>() : ofBox(frame, transform); // a dot has no size to change
    case MarkForm::Box:
        break;
    }
    QList<Handle> handles = ofBox(frame, transform);
    if (mark.kind == AnnotationKind::Stamp)
        handles += tailOf(mark);
    return handles;
}

QPointF viewPosition(const Handle &handle, const CanvasTransform &transform)
{
    return transform.toView(handle.position) + handle.viewOffset;
}

std::optional<Handle> at(const QList<Handle> &handles, QPointF view, const CanvasTransform &transform, double scale)
{
    std::optional<Handle> nearest;
    double least = grabReach * scale;
    for (const Handle &handle : handles) {
        const QPointF offset = view - viewPosition(handle, transform);
        const double distance = std::max(std::abs(offset.x()), std::abs(offset.y()));
        if (distance > least || (nearest && distance == least))
            continue;
        nearest = handle;
        least = distance;
    }
    return nearest;
}

CursorShape cursor(HandleRole role, std::optional<QSizeF> proportions)
{
    const QPoint direction = directionOf(role);
    if (direction.isNull())
        return { CanvasCursor::CrossArrow };
    QPointF movement = direction;
    if (proportions && isCorner(role) && !proportions->isEmpty())
        movement = { direction.x() * proportions->width(), direction.y() * proportions->height() };
    const double degrees = std::atan2(movement.y(), movement.x()) * 180 / std::numbers::pi;
    return { CanvasCursor::Resize, degrees < 0 ? degrees + 180 : degrees >= 180 ? degrees - 180 : degrees };
}

} // namespace tessaly::MarkHandles
