// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/ReshapeGestures.h"

#include "core/Editing/MarkReshaping.h"
#include "core/Editing/ResizeGesture.h"

namespace tessaly {

void EndpointGesture::update(const GestureInput &input)
{
    const bool isStart = role() == HandleRole::Start;
    const QPointF middle = (original().p1 + original().p2) / 2;
    const bool aboutMiddle = input.has(Qt::AltModifier);
    QPointF end = target(input);
    snapping().hide();
    if (input.has(Qt::ShiftModifier)) {
        end = MarkReshaping::inSteps(end, aboutMiddle ? middle : isStart ? original().p2 : original().p1);
    } else {
        end = snapping().pulled(end);
        snapping().showFor(end, { end, QSizeF() });
    }
    Annotation line = original();
    if (aboutMiddle)
        (isStart ? line.p2 : line.p1) = 2 * middle - end;
    put(MarkReshaping::withEnd(line, role(), end));
}

void BendGesture::update(const GestureInput &input) { put(MarkReshaping::bentThrough(original(), target(input))); }

void TailGesture::update(const GestureInput &input)
{
    const bool inSteps = input.has(Qt::ShiftModifier);
    const QPointF centre = original().rect().center();
    put(MarkReshaping::withTailTo(original(), inSteps ? MarkReshaping::inSteps(target(input), centre) : target(input)));
}

std::unique_ptr<Gesture> handleGesture(
    EditingContext &context, const Annotation &mark, const Handle &handle, QPointF pressedAt)
{
    const QPointF grabOffset = pressedAt - handle.position;
    switch (handle.role) {
    case HandleRole::Start:
    case HandleRole::End:
        return std::make_unique<EndpointGesture>(context, mark, handle.role, grabOffset);
    case HandleRole::Bend:
        return std::make_unique<BendGesture>(context, mark, handle.role, grabOffset);
    case HandleRole::Tail:
        return std::make_unique<TailGesture>(context, mark, handle.role, grabOffset);
    default:
        return std::make_unique<ResizeGesture>(context, mark, handle.role, grabOffset);
    }
}

} // namespace tessaly
