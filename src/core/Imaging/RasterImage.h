// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSizeF>

namespace tessaly {

/// A picture: its pixels and the size that it stands for in points.
///
/// The point size belongs to the picture and not to any screen: a capture of 2400 pixels taken at two pixels per point
/// is 1200 points wide wherever it is shown. The pixels are sRGB with 8 bits per component, in Format_RGB32 where the
/// picture is opaque and in Format_ARGB32_Premultiplied where it may not be.
struct RasterImage {
    QImage pixels;
    QSizeF pointSize;

    /// The picture at `pixelsPerPoint`, its pixels converted to one of the two formats and to sRGB. A scale that is not
    /// a positive number is 1.
    static RasterImage fromPixels(QImage pixels, double pixelsPerPoint = 1);

    QSize pixelSize() const { return pixels.size(); }

    /// Nothing to draw: no pixels, or a point size that is not positive.
    bool isEmpty() const { return pixels.isNull() || pointSize.isEmpty(); }

    /// Pixels per point, never below 1; 1 for a picture without width.
    double pixelScale() const;

    /// The resolution in whole pixels per inch: 72 at one pixel per point; 72 for a picture without width.
    int dpi() const;

    bool operator==(const RasterImage &) const = default;
};

} // namespace tessaly
