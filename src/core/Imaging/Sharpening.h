// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"

#include <QImage>

namespace tessaly {

/// The picture, in one of RasterImage's formats, with its edges made steeper: `amount` times what a small Gaussian (5
/// pixels wide) takes away is added to it. 1 is 100 %; 0 gives the picture itself, and beyond 16 nothing grows any
/// further. Transparency stays. Null without the memory, or when it is no longer wanted.
QImage sharpened(const QImage &image, double amount, int threads = 0, const Cancellation &cancellation = {});

} // namespace tessaly
