// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

#include <QPoint>
#include <QRect>

/// The effects that hide or soften a part of a picture. Regions and radii are in pixels; a radius is the standard
/// deviation of a Gaussian. Strengths, radii and rectangles may be any number, infinite or none at all.
namespace tessaly::ImageEffects {

/// Where the noise pattern of pixelated areas starts; chosen once a run so that the noise cannot be subtracted.
struct NoiseSeed {
    quint64 value = 0;

    /// From the system's source of randomness.
    static NoiseSeed random();
};

/// The side in pixels of the cells that hide a region of `pixelRegion` at this strength (1 is normal).
double pixelCellSide(QSize pixelRegion, double strength, double pixelsPerPoint);

/// The region softened, split into square cells about its centre, each cell one colour with grey noise over it.
/// Opaque (Format_RGB32), so that nothing shows through where it is drawn over what it hides. Null when the region is
/// empty. Reads no pixel outside the region.
QImage pixelated(const QImage &region, double strength, double pixelsPerPoint, NoiseSeed seed);

/// The region blurred with clamped edges; where it was translucent it lies on a middle grey. Opaque like the cells.
/// Null when the region is empty.
QImage obscuringBlur(const QImage &region, double strength);

/// The Gaussian blur within two levels, with clamped edges. The picture keeps its format, as Format_RGB32 or
/// Format_ARGB32_Premultiplied.
QImage gaussianBlur(const QImage &image, double pixelRadius);

/// The 8-bit coverage (Format_Grayscale8 sized like the request) of a rectangle's shadow: `pixelRect` blurred by
/// `pixelRadius`, clipped to `pixelSize`.
QImage rectangleShadow(QSize pixelSize, const QRectF &pixelRect, double pixelRadius);

/// The shadow of any shape: 8-bit coverage (Format_Grayscale8 or Format_Alpha8) blurred by `pixelRadius`; outside is 0.
QImage shapedShadow(const QImage &coverage, double pixelRadius);

} // namespace tessaly::ImageEffects
