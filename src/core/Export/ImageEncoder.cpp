// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ImageEncoder.h"

#include <QBuffer>

namespace tessaly {

Result<QByteArray> encodeImage(const RasterImage &image, ExportFormat format, const EncodeOptions &)
{
    QBuffer buffer;
    if (!buffer.open(QIODevice::WriteOnly) || !image.pixels.save(&buffer, rawValue(format).data()))
        return Failure { QStringLiteral("not encoded") };
    return buffer.data();
}

} // namespace tessaly
