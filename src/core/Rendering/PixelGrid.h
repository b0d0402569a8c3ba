// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>
#include <QRectF>
#include <QTransform>

namespace tessaly {

/// How image points fall on the pixels that are painted.
struct PixelGrid {
    QTransform toPixels; ///< from image points

    static PixelGrid scaledBy(double pixelsPerPoint)
    {
        return { QTransform::fromScale(pixelsPerPoint, pixelsPerPoint) };
    }

    /// Pixels per point; the mean of the two axes where they differ, never 0.
    double scale() const;

    /// Whether points move and grow but do not turn, so that upright rectangles stay upright.
    bool isUpright() const { return toPixels.type() <= QTransform::TxScale; }

    /// The whole pixels that a rectangle in points touches.
    QRect touchedPixels(const QRectF &points) const;

    /// The rectangle grown until its edges lie between pixels, in points. Unchanged on a grid that is not upright.
    QRectF grownToPixels(const QRectF &points) const;
};

/// The whole pixels that a rectangle in pixels touches. An overlap that only rounding can cause does not count.
QRect outwardRect(const QRectF &pixels);

} // namespace tessaly
