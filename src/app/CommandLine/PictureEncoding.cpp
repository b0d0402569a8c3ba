// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/PictureEncoding.h"

#include "app/CommandLine/CommandContext.h"

namespace tessaly {

Result<QByteArray> encodePicture(
    const RasterImage &picture, ExportFormat format, std::optional<double> quality, CommandContext &context)
{
    EncodeOptions options;
    if (isLossy(format))
        options.quality = quality ? *quality : storedQuality(format, context.settings());
    return encodeImage(picture, format, options);
}

} // namespace tessaly
