// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/EncodeOptions.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly::PngEncoder {

/// A PNG file of 8-bit samples: RGB where every pixel is opaque, else RGBA. Without loss. A resolution other than 72
/// dpi is recorded.
Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options);

} // namespace tessaly::PngEncoder
