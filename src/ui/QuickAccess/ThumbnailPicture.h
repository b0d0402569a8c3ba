// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

namespace tessaly {

/// What of a picture is seen in a frame, and how large.
struct ThumbnailFit {
    QRect pixelSource; ///< of the picture
    QSize pixelTarget; ///< what the source becomes, in device pixels

    /// All of the picture, not enlarged; of one that is so long that it would be a mere line, the beginning.
    /// `frame` is in points.
    static ThumbnailFit of(const RasterImage &image, QSize frame, double pixelsPerPoint);
};

/// The picture in the middle of a frame (points) of that colour, in device pixels.
QImage thumbnailPicture(const RasterImage &image, QSize frame, double pixelsPerPoint, const QColor &background);

} // namespace tessaly
