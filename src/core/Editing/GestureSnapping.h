// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/EditingContext.h"
#include "core/Editing/Snapping.h"

namespace tessaly {

/// Pulls the mark in hand towards the picture and the other marks, and remembers the guides to show. Does nothing
/// while snapping is switched off.
class GestureSnapping {
public:
    /// Keeps the reference.
    explicit GestureSnapping(const EditingContext &context) : m_context(context) { }

    /// Looks up what there is to snap to: the picture and all marks but one.
    void start(const std::optional<QUuid> &without);

    /// A point, such as the corner in hand, pulled on the axes that are not 0.
    QPointF pulled(QPointF point, QPoint axes = { 1, 1 }) const;
    /// The way by which a whole box is pulled.
    QPointF offsetFor(const QRectF &box, QPoint axes) const;

    /// Remembers guides for the point in hand, or the box, at its final place.
    void showFor(QPointF point, const QRectF &box, QPoint axes = { 1, 1 });
    void showFor(const QRectF &box);
    void hide() { m_guides.clear(); }
    const QList<QLineF> &guides() const { return m_guides; }

private:
    double reach() const;

    const EditingContext &m_context;
    SnapTargets m_targets;
    QList<QLineF> m_guides;
};

} // namespace tessaly
