// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Imaging/RasterImage.h"

class QPainter;

namespace tessaly {

/// Draws marks over a capture: the one painter for the screen and for every export. The capture itself is not drawn.
class AnnotationsCanvas {
public:
    QList<Annotation> annotations; ///< the first is drawn first
    std::optional<QUuid> editingID; ///< the mark whose text is being edited elsewhere; not drawn
    QSizeF imageSize; ///< points
    std::optional<RasterImage> source; ///< the capture below, which obscured areas and loupes sample

    /// Draws all marks at image points; the painter's transformation gives the scale.
    void draw(QPainter &painter) const;
};

} // namespace tessaly
