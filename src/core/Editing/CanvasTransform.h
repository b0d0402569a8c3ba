// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <QRectF>

namespace tessaly {

/// How image points fall on the view. View positions are logical pixels of the widget, so that sizes in them look the
/// same at every zoom.
struct CanvasTransform {
    double scale = 1; ///< view pixels per image point
    QPointF origin; ///< where the image's top-left corner lies in the view

    QPointF toView(QPointF image) const { return origin + image * scale; }
    QRectF toView(const QRectF &image) const { return { toView(image.topLeft()), image.size() * scale }; }
    QPointF toImage(QPointF view) const { return (view - origin) / scale; }
    double toImage(double viewLength) const { return viewLength / scale; }

    bool operator==(const CanvasTransform &) const = default;
};

} // namespace tessaly
