// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"

#include <QImage>

namespace tessaly {

/// The picture, in one of RasterImage's formats, drawn at another size: smooth where it grows, every pixel counted
/// where it shrinks. Its own size gives the picture itself. Null for an empty size, without the memory, or when it is
/// no longer wanted.
QImage resampled(const QImage &image, QSize size, int threads = 0, const Cancellation &cancellation = {});

} // namespace tessaly
