// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/EncodeOptions.h"
#include "core/Imaging/RasterImage.h"

namespace tessaly::PdfEncoder {

/// A PDF file of one page that is as large as the picture in points and filled by it. The pixels are stored without
/// loss, their alpha as a soft mask.
Result<QByteArray> encode(const RasterImage &image, const EncodeOptions &options);

} // namespace tessaly::PdfEncoder
