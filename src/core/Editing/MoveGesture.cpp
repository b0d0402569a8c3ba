// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MoveGesture.h"

#include "core/Editing/MarkReshaping.h"
#include "core/Editing/MarkShape.h"
#include "core/Editing/NewMarks.h"

namespace tessaly {

MoveGesture::MoveGesture(EditingContext &editing, const Annotation &mark, QPointF pressedAt) :
    MarkGesture(editing, mark),
    m_pressedAt(pressedAt)
{
}

void MoveGesture::begin()
{
    MarkGesture::begin();
    m_frame = MarkShape::frame(original(), context().text);
}

void MoveGesture::setCopying(bool copying)
{
    if (copying == m_copy.has_value())
        return;
    AnnotationStore &store = context().store;
    store.restore(change().before());
    m_copy.reset();
    if (copying) {
        m_copy = copyOf(original(), store);
        store.append(*m_copy);
        snapping().start(std::nullopt); // the original stays, to be aligned with
    } else {
        snapping().start(original().id);
    }
    store.setSelectedID(copying ? m_copy->id : original().id);
}

void MoveGesture::update(const GestureInput &input)
{
    setCopying(input.has(Qt::ControlModifier));
    QPointF offset = input.point - m_pressedAt;
    QPoint axes(1, 1);
    if (input.has(Qt::ShiftModifier)) {
        axes = std::abs(offset.x()) >= std::abs(offset.y()) ? QPoint(1, 0) : QPoint(0, 1);
        offset = { offset.x() * axes.x(), offset.y() * axes.y() };
    }
    offset += snapping().offsetFor(m_frame.translated(offset), axes);
    put(MarkReshaping::moved(m_copy ? *m_copy : original(), offset));
    snapping().showFor(m_frame.translated(offset));
}

CursorShape MoveGesture::cursor() const { return { m_copy ? CanvasCursor::DragCopy : CanvasCursor::ClosedHand }; }

} // namespace tessaly
