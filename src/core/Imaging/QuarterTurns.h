// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"
#include "core/Imaging/RasterImage.h"

#include <optional>

namespace tessaly {

/// One of the eight ways to lay a picture on its sides: turned clockwise first, then mirrored left to right.
struct Orientation {
    int quarterTurns = 0; ///< clockwise, 0 … 3
    bool mirrored = false;

    bool isUpright() const { return quarterTurns == 0 && !mirrored; }

    /// Whether width and height change places.
    bool swapsSides() const { return quarterTurns % 2 == 1; }

    /// What `next` makes of this one.
    Orientation then(Orientation next) const;
    Orientation inverse() const;

    bool operator==(const Orientation &) const = default;
};

/// The picture (4 bytes a pixel) in another orientation: the same pixels, none lost. Empty without the memory, or when
/// it is no longer wanted.
std::optional<RasterImage> oriented(
    const RasterImage &image, Orientation orientation, int threads, const Cancellation &cancellation = {});

} // namespace tessaly
