// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"
#include "core/Imaging/RasterImage.h"

#include <QColor>
#include <QList>

#include <optional>

namespace tessaly {

enum class CollageLayout { SideBySide, Stacked };

namespace Collage {

/// The longest shared side, in points.
inline constexpr double maxSharedLength = 1200;
/// Between the pictures, in points, unless another gap is asked for.
inline constexpr double usualGap = 12;

/// Joins pictures in their order: scaled to the largest shared side among them, at most maxSharedLength points, `gap`
/// points apart, on the background. A gap that is no positive number is none.
///
/// The result has the pixels per point of the finest picture, or of the finest with which it has at most `maxPixels`;
/// its sides are whole pixels. The pixels are the same for any number of threads (0: as many as the machine has).
/// Pictures without area are left out. Empty when none is left, without the memory, when the result would have more
/// than `maxPixels` even at one pixel per point, or when it is no longer wanted.
std::optional<RasterImage> combine(const QList<RasterImage> &images, CollageLayout layout, double gap,
    const QColor &background, qint64 maxPixels = qint64(512) * 1024 * 1024 / 4, const Cancellation &cancellation = {},
    int threads = 0);

} // namespace Collage

} // namespace tessaly
