// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/GaussianBlur.h"

#include <cstdint>
#include <functional>
#include <utility>
#include <vector>

/// A picture held as the means of its square blocks, for work that looks at nothing finer.
namespace tessaly::BlockSampling {

/// A channel's mean: 8 bits before the point and 8 after it.
using Sample = std::uint16_t;

constexpr int maxBlockSide = 4096;

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

/// Takes the means, one row of blocks at a time. Keeps references; each thread needs its own.
class Shrinker {
public:
    Shrinker(const QImage &image, const Grid &grid, GaussianBlur::Outside outside);

    /// Writes the row's means: `grid.columns()` times `grid.channels` of them.
    void shrinkRow(int row, Sample *means);

private:
    void sumRows(int top, int height, int from, int to, Sample *sums) const;
    void sumAcross(int top, int height);

    const QImage &m_image;
    const Grid &m_grid;
    GaussianBlur::Outside m_outside;
    int m_partSide; ///< of the square parts of a block that are summed in 16 bits
    std::vector<Sample> m_sums;
    std::vector<std::uint32_t> m_totals;
};

/// Writes the pixel rows `first` to before `end` with straight lines between the blocks; `bits` is the picture's first
/// byte. `readRow(row, means)` is asked for the rows of blocks that they lie between, downwards and once each.
void enlarge(const Grid &grid, int first, int end, const std::function<void(int, Sample *)> &readRow, uchar *bits,
    qsizetype bytesPerLine);

} // namespace tessaly::BlockSampling
