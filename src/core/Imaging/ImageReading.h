// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Imaging/RasterImage.h"

#include <QByteArray>

#include <optional>

namespace tessaly {

struct ImageReadOptions {
    /// Pixels per point of the picture. Without it a resolution record of 72·k dpi with k one of 1, 1.25, 1.5, 1.75,
    /// 2, 2.5, 3 or 4 (to the rounding of the file format) means k, and anything else 1.
    std::optional<double> pixelsPerPoint;

    /// The most pixels that are read: 512 MiB of them at 4 bytes each.
    qint64 maxPixels = qint64(512) * 1024 * 1024 / 4;

    /// Qt's readers are plug-ins, which need an application that has been made. Without them only PNG files of the
    /// common kinds can be read; any other fails, with a sentence that says nothing of the file.
    bool withPlugIns = true;
};

/// Decodes a picture of any format that Qt reads, turned upright and converted to sRGB. The size is checked before any
/// pixel is decoded. `name` stands for the picture in the sentence of a failure.
Result<RasterImage> readImage(const QByteArray &bytes, const QString &name, const ImageReadOptions &options = {});

/// Whether readImage could start on these bytes: a known format, not cut short, of a size within the limit. Decodes no
/// pixel.
Outcome checkImage(const QByteArray &bytes, const QString &name, const ImageReadOptions &options = {});

/// The same as readImage of a file.
Result<RasterImage> readImageFile(const QString &path, const ImageReadOptions &options = {});

} // namespace tessaly
