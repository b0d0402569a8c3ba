// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/GaussianBlur.h"
#include "core/Imaging/SamplePlane.h"

#include <utility>

/// A picture held as the means of its square blocks, for work that looks at nothing finer.
namespace tessaly::BlockSampling {

constexpr int maxBlockSide = 16;

/// The variance in pixels that shrinking and enlarging add together.
double variance(int blockSide);

/// The blocks of a picture, with one more block around them on every side.
struct Grid {
    QSize pixelSize;
    int side = 1; ///< in pixels, a power of two up to `maxBlockSide`
    int channels = 4; ///< bytes a pixel: 1 or 4

    int columns() const { return (pixelSize.width() + side - 1) / side + 2; }
    int rows() const { return (pixelSize.height() + side - 1) / side + 2; }

    /// The rows of blocks, from the first to before the second, that the pixel rows `first` to before `end` lie
    /// between.
    std::pair<int, int> rowsAround(int first, int end) const;
};

/// Writes the means of the blocks in the columns of blocks `first` to before `end`.
void shrink(
    const QImage &image, const Grid &grid, GaussianBlur::Outside outside, SamplePlane &means, int first, int end);

/// Writes the pixel rows `first` to before `end` with straight lines between the blocks. Row 0 of `means` is the row of
/// blocks `rowsAround` names first; `bits` is the picture's first byte.
void enlarge(const SamplePlane &means, const Grid &grid, uchar *bits, qsizetype bytesPerLine, int first, int end);

} // namespace tessaly::BlockSampling
