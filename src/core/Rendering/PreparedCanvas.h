// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/MarkPreparation.h"

class QPainter;

namespace tessaly {

class AnnotationsCanvas;

/// The marks of a canvas made ready for one grid of pixels. Painting it changes nothing, so that several threads may
/// paint parts of it at once.
class PreparedCanvas {
public:
    /// Everything is fitted to the pixels of a picture of `pixelSize` at `grid`; an empty size prepares for a painter
    /// alone. Uses up to `threads` threads, which do not change the result, and fonts where FontUse says so.
    PreparedCanvas(const AnnotationsCanvas &canvas, const PixelGrid &grid, QSize pixelSize, int threads);

    /// Paints the rows of `image`, of the size that the canvas was prepared for, within `clip`.
    void paint(QImage &image, const QRect &clip) const;

    /// Paints with a painter whose units are image points.
    void paint(QPainter &painter) const;

    /// The capture with its fully hidden areas painted over.
    const CaptureSample &sample() const { return m_sample; }

private:
    PixelGrid m_grid;
    CaptureSample m_sample;
    PreparedMark m_spotlights;
    std::vector<DrawnMark> m_marks;
};

} // namespace tessaly
