// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/EncodeOptions.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly::GifEncoder {

/// The longest side that the format holds, in pixels.
inline constexpr int maxSide = 65535;

/// A GIF file with one picture of at most 256 colours. A picture that has no more keeps them exactly. A pixel is
/// transparent or opaque, nothing between. The format records no resolution.
Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options);

} // namespace tessaly::GifEncoder
