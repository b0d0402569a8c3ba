// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPainterPath>

/// Strokes as the shapes that they fill, so that they are computed once and not at every repaint.
namespace tessaly::Strokes {

struct Pen {
    double width = 1; ///< points
    Qt::PenCapStyle cap = Qt::RoundCap;
    Qt::PenJoinStyle join = Qt::RoundJoin;
};

/// The outline of a stroke along the path. Round ends of a path without length make a dot.
QPainterPath outline(const QPainterPath &path, const Pen &pen);
QPainterPath outline(const QList<QPointF> &polyline, const Pen &pen);

QPainterPath polygon(const QList<QPointF> &corners);

/// Adds a closed piece so that it turns the same way as what is there: the overlap of the two is then filled, once.
void unite(QPainterPath &path, const QPainterPath &piece);

/// The path within `bounds`, where it reaches far beyond: what is outside is pulled to the border. Coordinates of
/// millions of pixels are more than a rasteriser can take.
QPainterPath within(const QPainterPath &path, const QRectF &bounds);

} // namespace tessaly::Strokes
