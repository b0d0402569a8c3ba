// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/CreateGestures.h"

#include "core/Editing/BoxDrag.h"
#include "core/Editing/MarkReshaping.h"
#include "core/Editing/MarkTraits.h"
#include "core/Editing/NewMarks.h"

#include <cmath>

namespace tessaly {

CreateGesture::CreateGesture(EditingContext &context, AnnotationKind kind, QPointF pressedAt) :
    m_context(context),
    m_kind(kind),
    m_anchor(pressedAt),
    m_last(pressedAt),
    m_snapping(context)
{
}

void CreateGesture::begin()
{
    AnnotationStore &store = m_context.store;
    m_snapping.start(std::nullopt);
    m_change.emplace(store);
    const Annotation mark = newMark(m_kind, m_anchor, store);
    store.append(mark);
    store.setSelectedID(mark.id);
}

void CreateGesture::update(const GestureInput &input)
{
    if (input.space)
        moveBy(input.point - m_last);
    m_last = input.point;
    shape(input);
}

bool CreateGesture::wheel(int notches)
{
    if (!traitsOf(m_kind).wheel.member)
        return true; // its size is in the pointer's hand
    change([&](Annotation &mark) { mark = afterWheel(mark, notches); });
    if (const Annotation *mark = m_context.store.selected())
        m_context.store.adoptStyle(Annotation(*mark));
    return true;
}

void CreateGesture::change(const std::function<void(Annotation &)> &change)
{
    m_context.store.updateSelection(Undo::Skip, change);
}

QPointF CreateGesture::pulled(const GestureInput &input) const
{
    return input.space ? input.point : m_snapping.pulled(input.point);
}

void CreateBoxGesture::shape(const GestureInput &input)
{
    BoxDrag drag { .start = { anchor(), QSizeF(0, 0) }, .aboutCentre = input.has(Qt::AltModifier) };
    if (traitsOf(kind()).keepsRatio != input.has(Qt::ShiftModifier))
        drag.ratio = 1;
    const QRectF dragged = drag.draggedTo(pulled(input));
    change([&](Annotation &mark) {
        mark.p1 = dragged.topLeft();
        mark.p2 = dragged.bottomRight();
    });
    const QRectF box = dragged.normalized();
    snapping().showFor(pointOn(box, roleAfter(drag.role, dragged)), box);
}

void CreateLineGesture::shape(const GestureInput &input)
{
    snapping().hide();
    QPointF end = pulled(input);
    if (input.has(Qt::ShiftModifier))
        end = MarkReshaping::inSteps(input.point, anchor());
    else
        snapping().showFor(end, { end, QSizeF() });
    change([&](Annotation &mark) {
        mark.p1 = input.has(Qt::AltModifier) ? 2 * anchor() - end : anchor();
        mark = MarkReshaping::withEnd(mark, HandleRole::End, end);
    });
}

void PenGesture::begin()
{
    CreateGesture::begin();
    change([&](Annotation &mark) { mark.points = { anchor() }; });
}

void PenGesture::moveBy(QPointF way)
{
    CreateGesture::moveBy(way);
    change([&](Annotation &mark) { mark = MarkReshaping::moved(mark, way); });
}

void PenGesture::shape(const GestureInput &input)
{
    if (input.space)
        return;
    const bool goesOn = std::exchange(m_isStraight, input.has(Qt::ShiftModifier)) && m_isStraight;
    constexpr double leastStep = 0.75; // view pixels
    change([&](Annotation &mark) {
        if (goesOn) {
            mark.points.last() = input.point;
            return MarkReshaping::updateAnchors(mark);
        }
        const QPointF step = input.point - mark.points.last();
        if (!m_isStraight && std::hypot(step.x(), step.y()) < context().transform.toImage(leastStep))
            return;
        mark.points += input.point;
        mark.p1 = { std::min(mark.p1.x(), input.point.x()), std::min(mark.p1.y(), input.point.y()) };
        mark.p2 = { std::max(mark.p2.x(), input.point.x()), std::max(mark.p2.y(), input.point.y()) };
    });
}

std::unique_ptr<Gesture> createGesture(EditingContext &context, AnnotationKind kind, QPointF pressedAt)
{
    switch (traitsOf(kind).form) {
    case MarkForm::Line:
        return std::make_unique<CreateLineGesture>(context, kind, pressedAt);
    case MarkForm::Path:
        return std::make_unique<PenGesture>(context, kind, pressedAt);
    case MarkForm::Box:
        if (kind != AnnotationKind::ImageOverlay)
            return std::make_unique<CreateBoxGesture>(context, kind, pressedAt);
        break;
    case MarkForm::Text:
        break;
    }
    return nullptr;
}

} // namespace tessaly
