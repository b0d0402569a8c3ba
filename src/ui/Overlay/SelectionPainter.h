// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/SelectionModel.h"

#include <QPainter>
#include <QRegion>
#include <QString>

/// How a selection looks on its monitor. Everything is in the monitor's device pixels; `scale` is pixels per point.
namespace tessaly::SelectionPainter {

/// The ground: dimmed, and as it is inside `clear`. Without a picture the surface is left see-through. The surface
/// begins at the monitor's row `top`.
void paintGround(QImage &surface, int top, const QRegion &region, const QImage &picture, const QRect &clear);

/// A selection's frame, with its size in pixels and with its grips while it is adjusted.
struct Frame {
    QRect rect; ///< empty for none
    bool showsHandles = false;
    bool operator==(const Frame &) const = default;
};
void paintFrame(QPainter &painter, const Frame &frame, QSize pixelSize, double scale);
/// What paintFrame() covers.
QRegion footprint(const Frame &frame, QSize pixelSize, double scale);

/// A window that would be picked, and its title where that is shown.
struct Highlight {
    QRect rect; ///< empty for none
    Qt::Edges open = {}; ///< where it goes on beyond the monitor
    QString title = {};
    bool operator==(const Highlight &) const = default;
};
void paintHighlight(QPainter &painter, const Highlight &highlight, double scale);

/// The font of all texts on the monitor.
QFont font(double scale, double points = 12);

} // namespace tessaly::SelectionPainter
