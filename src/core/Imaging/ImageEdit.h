// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"
#include "core/Imaging/QuarterTurns.h"
#include "core/Imaging/RasterImage.h"

#include <optional>

namespace tessaly {

/// A change of the capture's own pixels, as data: an undo step can keep it instead of the pixels that it made.
struct ImageEdit {
    enum class Kind { Crop, RotateClockwise, RotateCounterclockwise, FlipHorizontal, FlipVertical, Resize, Sharpen };

    Kind kind = Kind::Sharpen;
    QRectF cropRect = {}; ///< points; of Crop
    QSize pixelSize = {}; ///< of Resize
    double amount = 0; ///< of Sharpen; 1 is 100 %

    static ImageEdit crop(const QRectF &points) { return { .kind = Kind::Crop, .cropRect = points }; }
    static ImageEdit rotate(bool clockwise)
    {
        return { .kind = clockwise ? Kind::RotateClockwise : Kind::RotateCounterclockwise };
    }
    static ImageEdit flip(bool horizontal)
    {
        return { .kind = horizontal ? Kind::FlipHorizontal : Kind::FlipVertical };
    }
    static ImageEdit resize(QSize pixels) { return { .kind = Kind::Resize, .pixelSize = pixels }; }
    static ImageEdit sharpen(double amount) { return { .kind = Kind::Sharpen, .amount = amount }; }

    /// Of turns and flips, which lose nothing; empty for the other edits.
    std::optional<Orientation> orientation() const;

    bool operator==(const ImageEdit &) const = default;
};

/// The whole pixels that a crop to a rectangle in points keeps: each of its sides moved to the nearest pixel, and all
/// within the picture. Empty when it holds none.
QRect croppedPixels(const RasterImage &image, const QRectF &points);

/// The picture after the edit, the same bytes on every call and for any number of threads (0: as many as the machine
/// has). An edit that changes nothing gives the picture itself, its pixels shared. Empty when it cannot be made: a crop
/// that holds no pixel, no memory, or a result no longer wanted.
std::optional<RasterImage> applied(
    const RasterImage &image, const ImageEdit &edit, int threads = 0, const Cancellation &cancellation = {});

} // namespace tessaly
