// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/EncodeOptions.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly::TiffEncoder {

/// A TIFF file of 8-bit samples, RGB or with unassociated alpha, compressed without loss, with its resolution.
Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options);

} // namespace tessaly::TiffEncoder
