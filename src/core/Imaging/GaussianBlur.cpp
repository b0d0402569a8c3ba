// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/GaussianBlur.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/BlockSampling.h"
#include "core/Imaging/BoxBlur.h"

#include <algorithm>
#include <atomic>

namespace tessaly::GaussianBlur {

namespace {

/// Every side is then far shorter than the radius; it bounds what a line of boxes reads beyond the borders.
constexpr double largestRadius = 65536;

/// The largest blocks that still leave the straight lines between them within a level or two of the Gaussian.
int blockSideFor(double radius)
{
    constexpr double blocksPerRadius = 1.5;
    int side = 1;
    while (side < BlockSampling::maxBlockSide && 2 * side * blocksPerRadius <= radius)
        side *= 2;
    return side;
}

} // namespace

QImage blurred(const QImage &image, double pixelRadius, Outside outside, int threads)
{
    if (image.isNull() || !(pixelRadius > 0))
        return image;
    const double radius = std::min(pixelRadius, largestRadius);
    const BlockSampling::Grid grid { image.size(), blockSideFor(radius), image.depth() / 8 };
    const BoxBlur boxes((radius * radius - BlockSampling::variance(grid.side)) / (grid.side * grid.side), outside);
    SamplePlane means(grid.columns(), grid.rows(), grid.channels);
    SamplePlane softened(grid.columns(), grid.rows(), grid.channels);
    QImage out = PixelMemory::allocate(image.size(), image.format());
    if (means.isNull() || softened.isNull() || out.isNull())
        return {};

    // Two rounds and no more: the second needs all that the first wrote, and starting threads costs.
    Parallel::inBands(grid.columns(), threads, threads, [&](int first, int end) {
        BlockSampling::shrink(image, grid, outside, means, first, end);
        boxes.blurColumns(means, softened, first, end);
    });
    uchar *bits = out.bits();
    std::atomic<bool> complete = true;
    Parallel::inBands(image.height(), threads, threads, [&](int first, int end) {
        const auto [firstRow, endRow] = grid.rowsAround(first, end);
        SamplePlane rows(grid.columns(), endRow - firstRow, grid.channels);
        if (rows.isNull()) {
            complete = false;
            return;
        }
        boxes.blurRows(softened, firstRow, rows);
        BlockSampling::enlarge(rows, grid, bits, out.bytesPerLine(), first, end);
    });
    return complete ? out : QImage();
}

} // namespace tessaly::GaussianBlur
