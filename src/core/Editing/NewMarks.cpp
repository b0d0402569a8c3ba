// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/NewMarks.h"

#include "core/Editing/MarkReshaping.h"
#include "core/Editing/MarkTraits.h"

#include <algorithm>

namespace tessaly {

namespace {

/// A number that was shown on no stamp yet goes to this one.
void takeNumber(Annotation &mark, AnnotationStore &store)
{
    if (mark.kind != AnnotationKind::Stamp || mark.stamp != StampKind::Number)
        return;
    mark.text = QString::number(store.nextStampNumber());
    store.setNextStampNumber(store.nextStampNumber() + 1);
}

/// Of the last mark of the kind, so that a row of stamps is of one size.
QSizeF sizeOfLast(AnnotationKind kind, const AnnotationStore &store)
{
    const auto &marks = store.annotations();
    const auto last = std::find_if(marks.rbegin(), marks.rend(), [&](const auto &mark) { return mark.kind == kind; });
    const double usual = traitsOf(kind).placedSize;
    return last == marks.rend() || last->rect().isEmpty() ? QSizeF(usual, usual) : last->rect().size();
}

void shapeAround(Annotation &mark, QPointF at, EditingContext &context)
{
    const QSizeF size = sizeOfLast(mark.kind, context.store);
    switch (traitsOf(mark.kind).form) {
    case MarkForm::Box:
        mark.p1 = at - QPointF(size.width(), size.height()) / 2;
        mark.p2 = mark.p1 + QPointF(size.width(), size.height());
        break;
    case MarkForm::Path:
        mark.points = { at };
        MarkReshaping::updateAnchors(mark);
        break;
    case MarkForm::Text:
        mark = MarkReshaping::moved(mark, { 0, -context.text.box(mark).height() / 2 });
        break;
    case MarkForm::Line:
        break;
    }
}

} // namespace

Annotation newMark(AnnotationKind kind, QPointF at, AnnotationStore &store)
{
    Annotation mark(kind, at, at);
    store.toolStyle().applyTo(mark);
    takeNumber(mark, store);
    return mark;
}

Annotation copyOf(const Annotation &mark, AnnotationStore &store)
{
    Annotation copy = mark;
    copy.id = QUuid::createUuid();
    takeNumber(copy, store);
    return copy;
}

std::optional<QUuid> placeMark(AnnotationKind kind, QPointF at, EditingContext &context)
{
    if (!traitsOf(kind).isPlaced || kind == AnnotationKind::ImageOverlay)
        return std::nullopt;
    AnnotationStore &store = context.store;
    store.beginChange();
    Annotation mark = newMark(kind, at, store);
    shapeAround(mark, at, context);
    store.append(mark);
    store.setSelectedID(mark.id);
    return mark.id;
}

} // namespace tessaly
