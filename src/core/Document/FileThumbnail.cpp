// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/FileThumbnail.h"

#include "core/Document/PackageFolder.h"
#include "core/Document/TessalyDocument.h"

#include <QFileInfo>

namespace tessaly {

namespace {

constexpr qint64 maxThumbnailPixels = 4096 * 4096, maxImagePixels = 8192 * 8192;

QImage fitted(const QImage &picture, QSize pixelSize)
{
    if (picture.width() <= pixelSize.width() && picture.height() <= pixelSize.height())
        return picture;
    const QSize size = picture.size().scaled(pixelSize, Qt::KeepAspectRatio).expandedTo({ 1, 1 });
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// One picture of a package; null when it is not there or cannot be read.
QImage picture(const PackageFolder::Reader &package, const char *name, qint64 maxPixels)
{
    const auto bytes = package.entry(name, maxPixels * 4 + (1 << 20));
    if (!bytes)
        return {};
    const auto image = readImage(*bytes, QLatin1StringView(name), { .pixelsPerPoint = 1, .maxPixels = maxPixels });
    return image ? image->pixels : QImage();
}

} // namespace

QImage packageThumbnail(const QString &packagePath, QSize pixelSize)
{
    const PackageFolder::Reader package(packagePath);
    const bool linked = QFileInfo(packagePath + u'/' + QLatin1StringView(PackageFolder::thumbnailFolder)).isSymLink();
    QImage image = linked ? QImage() : picture(package, PackageFolder::thumbnailName, maxThumbnailPixels);
    if (image.isNull())
        image = picture(package, PackageFolder::imageName, maxImagePixels);
    return image.isNull() ? image : fitted(image, pixelSize);
}

QImage fileThumbnail(const QString &path, QSize pixelSize)
{
    if (TessalyDocument::isDocument(path))
        return packageThumbnail(path, pixelSize);
    const auto image = readImageFile(path, { .pixelsPerPoint = 1, .maxPixels = maxImagePixels });
    return image ? fitted(image->pixels, pixelSize) : QImage();
}

} // namespace tessaly
