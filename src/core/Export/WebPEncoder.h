// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/EncodeOptions.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly::WebPEncoder {

/// The longest side that the format holds, in pixels.
inline constexpr int maxSide = 16383;

/// A WebP file, without loss at quality 1. Transparency is kept, and a resolution other than 72 dpi recorded.
Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options);

/// The same file with its resolution in an EXIF chunk; unchanged when `dpi` is 72 to half a dot, or cannot be recorded.
QByteArray withResolution(const QByteArray &file, double dpi);

/// The EXIF record of a resolution: a TIFF directory of 66 bytes in thousandths of dots per inch.
QByteArray exifResolution(double dpi);

} // namespace tessaly::WebPEncoder
