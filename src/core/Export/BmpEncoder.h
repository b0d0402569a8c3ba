// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/EncodeOptions.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly::BmpEncoder {

/// A BMP file of the picture on white: 24 bits per pixel, not compressed, with its resolution.
Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options);

} // namespace tessaly::BmpEncoder
