// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/GaussianBlur.h"

#include "core/Imaging/BlockSampling.h"
#include "core/Imaging/BoxBlur.h"

#include <algorithm>

namespace tessaly::GaussianBlur {

namespace {

/// Every side is then far shorter than the radius; it bounds what a row of boxes reads beyond the borders.
constexpr double largestRadius = 65536;

/// The largest side of the blocks, a power of two, that still leaves the blocks' own softness small beside the radius.
int blockSideFor(double radius)
{
    int side = 1;
    while (side < BlockSampling::maxBlockSide && 2 * side * BlockSampling::blocksPerRadius <= radius)
        side *= 2;
    return side;
}

} // namespace

QImage blurred(const QImage &image, double pixelRadius, Outside outside, int threads)
{
    if (image.isNull() || !(pixelRadius > 0))
        return image;
    const double radius = std::min(pixelRadius, largestRadius);
    const int side = blockSideFor(radius);
    const double variance = (radius * radius - BlockSampling::variance(side)) / (side * side);
    QImage samples = BlockSampling::shrunk(image, side, outside, threads);
    samples = BoxBlur::columnsBlurred(samples, variance, outside, threads); // comes back transposed
    samples = BoxBlur::columnsBlurred(samples, variance, outside, threads);
    return BlockSampling::enlarged(samples, side, image.size(), image.format(), threads);
}

} // namespace tessaly::GaussianBlur
