// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ImageReading.h"

namespace tessaly {

Result<RasterImage> readImage(const QByteArray &bytes, const QString &name, const ImageReadOptions &options)
{
    QImage image = QImage::fromData(bytes);
    if (image.isNull())
        return Failure { name };
    return RasterImage::fromPixels(std::move(image), options.pixelsPerPoint.value_or(1));
}

Outcome checkImage(const QByteArray &, const QString &, const ImageReadOptions &) { return Done {}; }

Result<RasterImage> readImageFile(const QString &path, const ImageReadOptions &options)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failure { path };
    return readImage(file.readAll(), path, options);
}

} // namespace tessaly
