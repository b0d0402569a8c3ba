// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/CaptureSample.h"
#include "core/Rendering/LoupePainter.h"
#include "core/Rendering/PaintSteps.h"
#include "core/Rendering/PixelGrid.h"

#include <vector>

namespace tessaly {

class AnnotationsCanvas;

/// The marks of a canvas made ready for one grid of pixels: outlines, texts, decoded and obscured pictures, and what
/// the loupes show. Painting it changes nothing, so that several threads may paint parts of it at once.
class PreparedCanvas {
public:
    /// Uses up to `threads` threads, and fonts where FontUse says so. `threads` does not change the result.
    PreparedCanvas(const AnnotationsCanvas &canvas, const PixelGrid &grid, int threads);

    /// Paints what touches the target's clip. The painter's transformation is that of the grid.
    void paint(const PaintTarget &target) const;

    /// The capture with its fully hidden areas painted over.
    const CaptureSample &sample() const { return m_sample; }

private:
    class Preparation;

    PixelGrid m_grid;
    CaptureSample m_sample;
    PreparedMark m_spotlights;
    std::vector<PreparedMark> m_marks;
};

} // namespace tessaly
