// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/GaussianBlur.h"

/// A picture held as the means of its blocks, for work that looks at nothing finer.
///
/// The samples are 16 bits with 8 of them after the point: Format_RGBA64 stands for four channels in the picture's own
/// order, Format_Grayscale16 for one. A border of one block lies around the blocks of the picture.
namespace tessaly::BlockSampling {

constexpr int maxBlockSide = 16;

/// A Gaussian's radius must be this many blocks for the steps between them to stay below one level.
constexpr double blocksPerRadius = 3;

/// The variance in pixels that shrinking and enlarging add together.
double variance(int blockSide);

/// The means of blocks of `blockSide` pixels, a power of two up to `maxBlockSide`. Null without the memory.
QImage shrunk(const QImage &image, int blockSide, GaussianBlur::Outside outside, int threads);

/// The picture of `size` in `format` (8 bits a channel) that the samples describe, with straight lines between them.
QImage enlarged(const QImage &samples, int blockSide, QSize size, QImage::Format format, int threads);

} // namespace tessaly::BlockSampling
