// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/CropGesture.h"

#include "core/Editing/MarkHandles.h"
#include "core/Imaging/CropGeometry.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

QPointF clampedInto(QPointF point, const QRectF &bounds)
{
    return { std::clamp(point.x(), bounds.left(), bounds.right()),
        std::clamp(point.y(), bounds.top(), bounds.bottom()) };
}

/// One axis on whole pixels, at least one of them and not beyond `most`; both in pixels.
std::pair<double, double> onPixels(double from, double to, double most)
{
    const double start = std::clamp(std::round(from), 0.0, std::max(most - 1, 0.0));
    return { start, std::clamp(std::round(to), start + 1, std::max(most, start + 1)) };
}

QRectF onPixels(const QRectF &box, const EditingContext &context)
{
    const double scale = context.store.pixelScale();
    const QSize pixels = context.store.pixelDimensions();
    const auto [left, right] = onPixels(box.left() * scale, box.right() * scale, pixels.width());
    const auto [top, bottom] = onPixels(box.top() * scale, box.bottom() * scale, pixels.height());
    return { QPointF(left, top) / scale, QPointF(right, bottom) / scale };
}

double leastSide(const EditingContext &context) { return 1 / context.store.pixelScale(); }

} // namespace

CropGrip cropGripAt(QPointF view, const EditingContext &context, double handleScale)
{
    const QRectF frame = context.store.cropRect();
    const auto handles = MarkHandles::ofBox(frame, context.transform);
    if (const auto handle = MarkHandles::at(handles, view, context.transform, handleScale))
        return { CropGrip::Part::Handle, handle->role };
    const bool isInside = frame.contains(context.transform.toImage(view)) && frame != context.picture();
    return { isInside ? CropGrip::Part::Inside : CropGrip::Part::Outside };
}

CropGesture::CropGesture(EditingContext &context, CropGrip grip, QPointF pressedAt) :
    m_context(context),
    m_grip(grip),
    m_before(context.store.cropRect()),
    m_pressedAt(pressedAt),
    m_role(grip.role)
{
    if (grip.part == CropGrip::Part::Handle)
        m_grabOffset = pressedAt - pointOn(m_before, grip.role);
}

CropGesture::~CropGesture()
{
    if (m_isOpen && m_context.store.isCropping())
        m_context.store.setCropRect(m_before);
}

std::optional<double> CropGesture::ratio(const GestureInput &input) const
{
    if (const auto kept = m_context.store.cropRatio())
        return kept;
    const bool keeps = input.has(Qt::ShiftModifier);
    return keeps && !m_before.isEmpty() ? std::optional(m_before.width() / m_before.height()) : std::nullopt;
}

QRectF CropGesture::dragged(const GestureInput &input)
{
    const QRectF picture = m_context.picture();
    if (m_grip.part == CropGrip::Part::Inside)
        return CropGeometry::movedInside(m_before.translated(input.point - m_pressedAt), picture);
    const bool isNew = m_grip.part == CropGrip::Part::Outside;
    const BoxDrag drag { .start = isNew ? QRectF(clampedInto(m_pressedAt, picture), QSizeF(0, 0)) : m_before,
        .role = m_grip.role,
        .ratio = ratio(input),
        .aboutCentre = input.has(Qt::AltModifier),
        .least = leastSide(m_context),
        .within = picture };
    const QRectF box = drag.draggedTo(clampedInto(input.point - m_grabOffset, picture));
    m_role = roleAfter(m_grip.role, box);
    return box.normalized();
}

void CropGesture::update(const GestureInput &input)
{
    m_context.store.setCropRect(onPixels(dragged(input), m_context));
}

CursorShape CropGesture::cursor() const
{
    if (m_grip.part == CropGrip::Part::Handle)
        return MarkHandles::cursor(m_role, std::nullopt);
    return { m_grip.part == CropGrip::Part::Inside ? CanvasCursor::ClosedHand : CanvasCursor::Cross };
}

QRectF steppedCrop(const EditingContext &context, QPointF step, bool resizes)
{
    const QRectF frame = context.store.cropRect();
    if (!resizes)
        return onPixels(CropGeometry::movedInside(frame.translated(step), context.picture()), context);
    const QPointF corner = clampedInto(frame.bottomRight() + step, context.picture());
    const double least = leastSide(context);
    return onPixels(
        { frame.topLeft(),
            QPointF(std::max(corner.x(), frame.left() + least), std::max(corner.y(), frame.top() + least)) },
        context);
}

} // namespace tessaly
