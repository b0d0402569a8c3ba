// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Frame/FrameLayout.h"
#include "core/Frame/Watermark.h"
#include "core/Rendering/AnnotationsCanvas.h"

namespace tessaly {

/// A capture with its marks on its frame, with its watermark.
struct FrameComposition {
    FrameLayout layout;
    std::optional<FrameStyle> frame;
    std::optional<Watermark> watermark;
    RasterImage image;
    bool forEditor = false; ///< shows transparency as a checkerboard
    AnnotationsCanvas content;

    /// The whole at `scale` pixels per point; null when there is no canvas or no memory. The bytes do not depend on
    /// the number of threads.
    QImage rendered(double scale, int threads) const;
};

} // namespace tessaly
