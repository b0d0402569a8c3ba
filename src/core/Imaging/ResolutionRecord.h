// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

#include <QByteArray>

#include <optional>

/// The resolution that picture files carry beside their pixels.
namespace tessaly::ResolutionRecord {

/// What a file of the picture has to record; empty for 72 dpi, which every reader assumes, and for what is beyond the
/// range of the formats.
std::optional<int> dpiToRecord(const RasterImage &image);

/// The pixels per point that a file's record means: k when it is 72·k dpi to the rounding of its unit, k being one of
/// 1, 1.25, 1.5, 1.75, 2, 2.5, 3 and 4. Anything else, and a file without a record, is 1. `bytes` are a PNG, JPEG,
/// TIFF, WebP or BMP file; they may be damaged.
double pixelsPerPoint(const QByteArray &bytes);

} // namespace tessaly::ResolutionRecord
