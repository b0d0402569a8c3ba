// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/EncodeOptions.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly::JpegEncoder {

/// The longest side that the compressor takes, in pixels.
inline constexpr int maxSide = 65500;

/// A JPEG file of the picture on white. Colour is kept at full resolution: halving it, as is usual for photographs,
/// smears coloured text and one-pixel lines. A resolution other than 72 dpi is recorded.
Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options);

} // namespace tessaly::JpegEncoder
