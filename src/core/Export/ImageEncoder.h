// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/ExportFormat.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly {

/// How hard and on how many threads encoders work.
struct EncodeOptions {
    double quality = 0.9; ///< 0 to 1; read by lossy formats only
    int threads = 0; ///< 0 means as many as the machine has
};

/// The bytes of a file of that format holding the picture with its resolution. Transparency is kept where the format
/// has it; JPEG and BMP lie on white. Fails with a sentence when the format cannot hold the picture.
Result<QByteArray> encodeImage(const RasterImage &image, ExportFormat format, const EncodeOptions &options);

} // namespace tessaly
