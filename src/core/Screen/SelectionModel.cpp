// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Screen/SelectionModel.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

/// Which edges a grip moves: -1 the left or top one, 1 the right or bottom one, 0 neither.
struct Edges {
    int across;
    int down;
};

/// In the order of `Handle`.
constexpr Edges edgeTable[] = { { -1, -1 }, { 1, -1 }, { -1, 1 }, { 1, 1 }, { 0, -1 }, { 0, 1 }, { -1, 0 }, { 1, 0 } };

Edges edgesOf(Handle handle) { return edgeTable[static_cast<int>(handle)]; }

/// The rectangle between two edges each way, whichever of the two comes first.
QRect between(QPoint one, QPoint other)
{
    const QPoint topLeft(std::min(one.x(), other.x()), std::min(one.y(), other.y()));
    return { topLeft, QSize(std::abs(one.x() - other.x()), std::abs(one.y() - other.y())) };
}

QPoint pastLast(const QRect &rect) { return { rect.x() + rect.width(), rect.y() + rect.height() }; }

/// Where an edge is dragged to: 0 and `size` are the monitor's own.
int reachedEdge(int pointer, int grabOffset, int size)
{
    if (pointer <= 0)
        return 0;
    return pointer >= size - 1 ? size : std::clamp(pointer + grabOffset, 0, size);
}

/// One axis of a resize: the edges that the selection then has, in any order.
struct Span {
    int first;
    int last;
};

Span resizedSpan(Span original, int side, int reached, int size, bool fromCentre)
{
    if (side == 0)
        return original;
    const int mirror = original.first + original.last;
    if (!fromCentre)
        return side < 0 ? Span { reached, original.last } : Span { original.first, reached };
    const int edge = std::clamp(reached, std::max(0, mirror - size), std::min(size, mirror));
    return { edge, mirror - edge };
}

int nudgedLength(int length, int change, int room, int least)
{
    return std::min(std::max(length + change, least), room);
}

} // namespace

int SelectionModel::pixels(double points) const { return static_cast<int>(std::lround(points * m_scale)); }

bool SelectionModel::isValid() const
{
    return m_pixelRect.width() >= smallestPoints * m_scale && m_pixelRect.height() >= smallestPoints * m_scale;
}

void SelectionModel::clear()
{
    m_pixelRect = {};
    m_before = {};
    m_drag = {};
    m_adjusting = false;
}

void SelectionModel::select(const QRect &pixelRect)
{
    m_drag = {};
    m_pixelRect = pixelRect & QRect(QPoint(), m_pixelSize);
}

QPoint SelectionModel::gripPoint(Handle handle) const
{
    const auto [across, down] = edgesOf(handle);
    return m_pixelRect.topLeft()
        + QPoint(m_pixelRect.width() * (across + 1) / 2, m_pixelRect.height() * (down + 1) / 2);
}

QRect SelectionModel::handleRect(Handle handle) const
{
    const auto [across, down] = edgesOf(handle);
    const bool isNarrow = m_pixelRect.width() < pixels(roomyPoints);
    const bool isLow = m_pixelRect.height() < pixels(roomyPoints);
    if ((across == 0 && isNarrow) || (down == 0 && isLow))
        return {};
    const int side = pixels(handlePoints);
    const auto first = [side](int grip, int way, bool isShort) {
        return !isShort || way == 0 ? grip - side / 2 : way < 0 ? grip - side : grip;
    };
    const QPoint grip = gripPoint(handle);
    return { first(grip.x(), across, isNarrow), first(grip.y(), down, isLow), side, side };
}

/// The corners come first.
std::optional<Handle> SelectionModel::handleAt(QPoint pixel) const
{
    if (!isValid())
        return {};
    const auto found
        = std::ranges::find_if(allHandles, [&](Handle handle) { return handleRect(handle).contains(pixel); });
    return found == allHandles.end() ? std::nullopt : std::optional(*found);
}

QPoint SelectionModel::onEdges(QPoint pixel) const
{
    return { reachedEdge(pixel.x(), 0, m_pixelSize.width()), reachedEdge(pixel.y(), 0, m_pixelSize.height()) };
}

void SelectionModel::press(QPoint pixel)
{
    m_before = m_pixelRect;
    m_pointer = pixel;
    if (const auto handle = handleAt(pixel)) {
        m_drag = Resize { *handle, gripPoint(*handle) - pixel, m_pixelRect };
    } else if (isValid() && m_pixelRect.contains(pixel)) {
        m_drag = Move { pixel, m_pixelRect };
    } else {
        m_drag = Create { onEdges(pixel) };
        m_pixelRect = QRect(onEdges(pixel), QSize());
    }
}

void SelectionModel::drag(QPoint pixel, Constraint constraint)
{
    const QPoint travel = pixel - m_pointer;
    m_pointer = pixel;
    if (auto *create = std::get_if<Create>(&m_drag)) {
        if (constraint.moves) {
            const QRect rect = moved(m_pixelRect, travel);
            create->origin += rect.topLeft() - m_pixelRect.topLeft();
            m_pixelRect = rect;
        } else {
            m_pixelRect = spanned(create->origin, onEdges(pixel), constraint);
        }
    } else if (const auto *move = std::get_if<Move>(&m_drag)) {
        m_pixelRect = moved(move->original, pixel - move->from);
    } else if (const auto *resize = std::get_if<Resize>(&m_drag)) {
        m_pixelRect = resized(*resize, pixel, constraint);
    }
}

/// The rectangle from one point to another; with a constraint its far corner is not where the pointer is.
QRect SelectionModel::spanned(QPoint anchor, QPoint reached, Constraint constraint) const
{
    const QPoint toEnd = QPoint(m_pixelSize.width(), m_pixelSize.height()) - anchor;
    QPoint travel = reached - anchor;
    const auto room = [&](int way, int before, int after) {
        return constraint.fromCentre ? std::min(before, after) : way < 0 ? before : after;
    };
    int across = std::min(std::abs(travel.x()), room(travel.x(), anchor.x(), toEnd.x()));
    int down = std::min(std::abs(travel.y()), room(travel.y(), anchor.y(), toEnd.y()));
    if (constraint.square) {
        const int side = std::max(std::abs(travel.x()), std::abs(travel.y()));
        across = down
            = std::min({ side, room(travel.x(), anchor.x(), toEnd.x()), room(travel.y(), anchor.y(), toEnd.y()) });
    }
    travel = QPoint(travel.x() < 0 ? -across : across, travel.y() < 0 ? -down : down);
    return between(constraint.fromCentre ? anchor - travel : anchor, anchor + travel);
}

QRect SelectionModel::moved(const QRect &rect, QPoint travel) const
{
    const QPoint last(m_pixelSize.width() - rect.width(), m_pixelSize.height() - rect.height());
    const QPoint wanted = rect.topLeft() + travel;
    return { QPoint(std::max(0, std::min(wanted.x(), last.x())), std::max(0, std::min(wanted.y(), last.y()))),
        rect.size() };
}

QRect SelectionModel::resized(const Resize &drag, QPoint pixel, Constraint constraint) const
{
    const auto [across, down] = edgesOf(drag.handle);
    const QPoint reached(reachedEdge(pixel.x(), drag.grabOffset.x(), m_pixelSize.width()),
        reachedEdge(pixel.y(), drag.grabOffset.y(), m_pixelSize.height()));
    const QPoint first = drag.original.topLeft();
    const QPoint last = pastLast(drag.original);
    if (constraint.square && !constraint.fromCentre && across != 0 && down != 0)
        return spanned({ across < 0 ? last.x() : first.x(), down < 0 ? last.y() : first.y() }, reached, constraint);
    const Span x
        = resizedSpan({ first.x(), last.x() }, across, reached.x(), m_pixelSize.width(), constraint.fromCentre);
    const Span y = resizedSpan({ first.y(), last.y() }, down, reached.y(), m_pixelSize.height(), constraint.fromCentre);
    return between({ x.first, y.first }, { x.last, y.last });
}

void SelectionModel::release()
{
    if (isDragging() && !isValid())
        m_pixelRect = m_before;
    m_drag = {};
}

void SelectionModel::cancelDrag()
{
    if (isDragging())
        m_pixelRect = m_before;
    m_drag = {};
}

bool SelectionModel::isDragging() const { return !std::holds_alternative<std::monostate>(m_drag); }

bool SelectionModel::nudge(QPoint direction, bool resizes)
{
    if (isDragging())
        return false;
    const QRect before = m_pixelRect;
    if (isValid()) {
        m_pixelRect = nudged(direction, resizes);
    } else {
        const QSize fresh = QSize(pixels(freshSidePoints), pixels(freshSidePoints)).boundedTo(m_pixelSize);
        const QSize margin = (m_pixelSize - fresh) / 2;
        m_pixelRect = QRect(QPoint(margin.width(), margin.height()), fresh);
        m_adjusting = true;
    }
    return m_pixelRect != before;
}

/// Resizing leaves the bottom left corner where it is: up makes it taller, right makes it wider.
QRect SelectionModel::nudged(QPoint direction, bool resizes) const
{
    if (!resizes)
        return moved(m_pixelRect, direction * pixels(stepPoints));
    const int step = pixels(largeStepPoints);
    const int least = pixels(leastResizedPoints);
    const int bottom = pastLast(m_pixelRect).y();
    const int width = direction.x() == 0
        ? m_pixelRect.width()
        : nudgedLength(m_pixelRect.width(), direction.x() * step, m_pixelSize.width() - m_pixelRect.x(), least);
    const int height = direction.y() == 0 ? m_pixelRect.height()
                                          : nudgedLength(m_pixelRect.height(), -direction.y() * step, bottom, least);
    return { m_pixelRect.x(), bottom - height, width, height };
}

} // namespace tessaly
