// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Rendering/CaptureSample.h"
#include "core/Rendering/PaintSteps.h"
#include "core/Rendering/PixelGrid.h"

#include <vector>

namespace tessaly {

/// A loupe: a magnified look at the capture and the marks below it.
class LoupePainter {
public:
    /// The mark's numbers are in range. `canvas` is what there is to see, in points; `shown` the pixels of the grid
    /// that are painted, all of them when it is empty.
    LoupePainter(const Annotation &mark, const PixelGrid &grid, const QRectF &canvas, const QRect &shown);

    /// The part of the canvas that is magnified, in points.
    QRectF seen() const { return m_seen; }

    /// How many pixels the contents have; empty when the loupe shows nothing of the canvas.
    QSize contentSize() const { return m_pixels.size(); }

    /// The contents, magnified about the middle of the loupe: the capture and `below`, in drawing order.
    QImage magnifierContents(const CaptureSample &sample, const std::vector<const PreparedMark *> &below) const;

    /// The loupe with these contents, or its border alone when they are null.
    void prepare(const QImage &contents, const QRectF &paintable, PreparedMark &out) const;

private:
    QPainterPath shape() const;

    const Annotation &m_mark;
    PixelGrid m_grid;
    QTransform m_magnified; ///< points to magnified points
    QRect m_pixels; ///< that the loupe's contents fill, in the grid
    QRectF m_seen;
};

} // namespace tessaly
