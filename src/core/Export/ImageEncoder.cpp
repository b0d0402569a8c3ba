// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ImageEncoder.h"

#include "core/Export/PngEncoder.h"

#include <QBuffer>

namespace tessaly {

Result<QByteArray> encodeImage(const RasterImage &image, ExportFormat format, const EncodeOptions &options)
{
    if (image.isEmpty())
        return Failure { QStringLiteral("The picture is empty.") };
    if (format == ExportFormat::Png)
        return PngEncoder::encode(image, options);
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly) || !image.pixels.save(&buffer, rawValue(format).data()))
        return Failure { QStringLiteral("not encoded") };
    return buffer.data();
}

} // namespace tessaly
