// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Imaging/ImageEffects.h"
#include "core/Imaging/RasterImage.h"
#include "core/Rendering/PictureCaches.h"

#include <memory>

class QPainter;

namespace tessaly {

/// Draws marks over a capture: the one painter for the screen and for every export. The capture itself is not drawn.
///
/// A mark that cannot be drawn, because its numbers or its picture make no sense, is left out.
class AnnotationsCanvas {
public:
    QList<Annotation> annotations; ///< the first is drawn first
    std::optional<QUuid> editingID; ///< the mark whose text is being edited elsewhere; not drawn
    QSizeF imageSize; ///< points
    std::optional<RasterImage> source; ///< the capture below, which obscured areas and loupes sample

    /// The noise over pixelated areas; one for the whole run unless a test wants its own.
    ImageEffects::NoiseSeed noiseSeed = noiseSeedOfThisRun();

    /// Kept from one repaint to the next, and shared by copies of the canvas.
    std::shared_ptr<OverlayCache> overlayCache = std::make_shared<OverlayCache>();
    std::shared_ptr<ObscuredCache> obscuredCache = std::make_shared<ObscuredCache>();

    /// Draws all marks at image points; the painter's transformation gives the scale.
    void draw(QPainter &painter) const;

    /// The picture that shows `base` with all marks, `pixelSize` large with `scale` pixels per point, painted in bands
    /// of rows by up to `threads` threads. Neither the bands nor the threads change a byte. Null when there is no
    /// memory for it.
    QImage drawnOver(const RasterImage &base, QSize pixelSize, double scale, int threads) const;

private:
    static ImageEffects::NoiseSeed noiseSeedOfThisRun();
};

} // namespace tessaly
