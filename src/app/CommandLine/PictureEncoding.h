// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Export/ImageEncoder.h"

namespace tessaly {

class CommandContext;

/// The bytes of a picture in a format, at the given quality or the one that the user's settings hold.
Result<QByteArray> encodePicture(
    const RasterImage &picture, ExportFormat format, std::optional<double> quality, CommandContext &context);

} // namespace tessaly
