// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/ResizeGesture.h"

#include "core/Editing/MarkHandles.h"
#include "core/Editing/MarkReshaping.h"
#include "core/Editing/MarkShape.h"
#include "core/Editing/MarkTraits.h"

#include <algorithm>

namespace tessaly {

void ResizeGesture::begin()
{
    HandleGesture::begin();
    m_frame = m_dragged = MarkShape::frame(original(), context().text);
}

BoxDrag ResizeGesture::drag(const GestureInput &input) const
{
    BoxDrag drag { .start = m_frame, .role = role(), .aboutCentre = input.has(Qt::AltModifier) };
    const MarkTraits &traits = traitsOf(original().kind);
    const bool keeps = traits.form == MarkForm::Text || traits.keepsRatio != input.has(Qt::ShiftModifier);
    if (keeps && isCorner(role()) && !m_frame.isEmpty())
        drag.ratio = m_frame.width() / m_frame.height();
    return drag;
}

void ResizeGesture::resizeText(const GestureInput &input)
{
    const BoxDrag dragging = drag(input);
    m_dragged = dragging.draggedTo(target(input));
    // A text has no mirror image: past the other side it stays as small as can be.
    const double factor = std::max({ m_dragged.width() / m_frame.width(), m_dragged.height() / m_frame.height(), 0.0 });
    m_dragged = m_dragged.normalized();
    put(dragging.aboutCentre
            ? MarkReshaping::scaledTextAboutCentre(original(), factor, context().text)
            : MarkReshaping::scaledText(original(), factor, roleTowards(-directionOf(role())), context().text));
}

void ResizeGesture::update(const GestureInput &input)
{
    m_keepsRatio = drag(input).ratio.has_value();
    if (traitsOf(original().kind).form == MarkForm::Text)
        return resizeText(input);
    const QPoint axes = directionOf(role());
    m_dragged = drag(input).draggedTo(snapping().pulled(target(input), axes));
    put(MarkReshaping::fitted(original(), m_frame, m_dragged));
    const QRectF box = m_dragged.normalized();
    snapping().showFor(pointOn(box, roleAfter(role(), m_dragged)), box, axes);
}

CursorShape ResizeGesture::cursor() const
{
    return MarkHandles::cursor(
        roleAfter(role(), m_dragged), m_keepsRatio ? std::optional(m_frame.size()) : std::nullopt);
}

} // namespace tessaly
