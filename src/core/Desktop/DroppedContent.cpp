// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/DroppedContent.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QMimeData>
#include <QSysInfo>
#include <QUrl>

namespace tessaly {

namespace {

/// Empty for what lies elsewhere. Some file managers name this machine in their addresses.
QString localPath(const QUrl &url)
{
    const QString host = url.host();
    const bool isHere
        = host.isEmpty() || host == u"localhost" || host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
    return url.isLocalFile() && isHere ? QDir::cleanPath(url.path(QUrl::FullyDecoded)) : QString();
}

/// The bytes as they came where the source offers a file format, else the decoded picture as PNG.
QByteArray pictureFile(const QMimeData &data)
{
    for (const QString &type : { QStringLiteral("image/png"), QStringLiteral("image/jpeg") })
        if (const QByteArray bytes = data.data(type); !bytes.isEmpty())
            return bytes;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    const auto picture = qvariant_cast<QImage>(data.imageData());
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
        return {};
    return bytes;
}

} // namespace

DroppedContent DroppedContent::offered(const QMimeData &data)
{
    DroppedContent content;
    for (const QUrl &url : data.urls()) {
        const QString path = localPath(url);
        if (path.isEmpty())
            content.hasLinks = true;
        else if (!content.paths.contains(path))
            content.paths += path;
    }
    content.hasPicture = content.paths.isEmpty() && data.hasImage();
    if (content.hasPicture)
        content.hasLinks = false; // a browser's picture comes with its address
    return content;
}

DroppedContent DroppedContent::taken(const QMimeData &data)
{
    DroppedContent content = offered(data);
    if (content.hasPicture)
        content.picture = pictureFile(data);
    return content;
}

QString DroppedContent::refusal() const
{
    return hasLinks ? QCoreApplication::translate(
               "DroppedContent", "Tessaly fetches nothing from the network. Save the picture first, and drop its file.")
                    : QString();
}

} // namespace tessaly
