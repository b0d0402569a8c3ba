// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <optional>
#include <vector>

namespace tessaly {

/// A picture of at most 256 colours, the colours in the order in which they first appear, row by row.
struct IndexedPicture {
    QSize pixelSize;
    std::vector<uint8_t> indices; ///< one per pixel, no padding between rows
    std::vector<QRgb> colors; ///< opaque, but for one that may be 0: fully transparent
};

/// The picture as it is, if it has no more than 256 colours. `image` is Format_ARGB32 or Format_RGB32.
std::optional<IndexedPicture> indexedExactly(const QImage &image);

/// The picture with every pixel either opaque or, where less than half of it covers, fully transparent (all 0).
/// `image` is in one of RasterImage's formats; the result is Format_ARGB32 or, if `image` is, Format_RGB32.
QImage withBinaryAlpha(const QImage &image);

} // namespace tessaly
