// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/GestureSnapping.h"

#include "core/Editing/MarkShape.h"

namespace tessaly {

namespace {

QList<double> edgesX(const QRectF &box) { return { box.left(), box.center().x(), box.right() }; }
QList<double> edgesY(const QRectF &box) { return { box.top(), box.center().y(), box.bottom() }; }

} // namespace

void GestureSnapping::start(const std::optional<QUuid> &without)
{
    m_targets = {};
    m_targets.add(m_context.picture());
    for (const Annotation &mark : m_context.store.annotations()) {
        if (mark.id != without)
            m_targets.add(MarkShape::frame(mark, m_context.text));
    }
}

double GestureSnapping::reach() const
{
    constexpr double viewReach = 6;
    return m_context.snapping ? m_context.reach(viewReach) : -1;
}

QPointF GestureSnapping::pulled(QPointF point, QPoint axes) const
{
    const double x = axes.x() ? m_targets.offsetX({ point.x() }, reach()) : 0;
    const double y = axes.y() ? m_targets.offsetY({ point.y() }, reach()) : 0;
    return point + QPointF(x, y);
}

QPointF GestureSnapping::offsetFor(const QRectF &box, QPoint axes) const
{
    return { axes.x() ? m_targets.offsetX(edgesX(box), reach()) : 0,
        axes.y() ? m_targets.offsetY(edgesY(box), reach()) : 0 };
}

void GestureSnapping::showFor(QPointF point, const QRectF &box, QPoint axes)
{
    hide();
    const auto only = [](double position, int axis) { return axis ? QList { position } : QList<double>(); };
    if (m_context.snapping)
        m_guides = m_targets.guides(box, only(point.x(), axes.x()), only(point.y(), axes.y()));
}

void GestureSnapping::showFor(const QRectF &box)
{
    hide();
    if (m_context.snapping)
        m_guides = m_targets.guides(box, edgesX(box), edgesY(box));
}

} // namespace tessaly
