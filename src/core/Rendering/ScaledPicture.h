// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/PaintSteps.h"

namespace tessaly {

/// How many more pixels the scaled pictures of one preparation may take. One thread.
struct PixelBudget {
    qint64 pixels = 0;

    /// Takes them when they are there.
    bool take(QSize size);
};

/// The step that shows a picture in `target` (points). A picture of far more pixels than are shown is averaged down
/// first, since a painter alone would skip some of them; what lies beyond `paintable` is cut away. With
/// the budget spent the picture stays as it is.
PictureStep pictureFor(
    const QImage &picture, const QRectF &target, double pixelsPerPoint, const QRectF &paintable, PixelBudget &budget);

} // namespace tessaly
