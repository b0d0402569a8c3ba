// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/EncodeOptions.h"
#include "core/Export/ExportFormat.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly {

/// The bytes of a file of that format holding the picture with its resolution. Transparency is kept where the format
/// has it; JPEG and BMP lie on white. Fails with a sentence when the format cannot hold the picture.
Result<QByteArray> encodeImage(const RasterImage &image, ExportFormat format, const EncodeOptions &options);

} // namespace tessaly
