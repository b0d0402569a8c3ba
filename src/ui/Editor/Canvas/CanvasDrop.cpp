// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasDrop.h"

#include "core/Editing/MarkClipboard.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace tessaly {

namespace {

bool isPictureFile(const QUrl &url)
{
    const QFileInfo file(url.toLocalFile());
    return url.isLocalFile() && file.isFile() && file.suffix().compare(u"tessaly", Qt::CaseInsensitive) != 0;
}

QString tr(const char *sentence) { return QCoreApplication::translate("CanvasDrop", sentence); }

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

bool CanvasDrop::canTake(const QMimeData &data)
{
    const QList<QUrl> urls = data.urls();
    if (!urls.isEmpty())
        return std::ranges::all_of(urls, isPictureFile);
    return data.hasImage();
}

Outcome CanvasDrop::take(const QMimeData &data, AnnotationStore &store, QPointF at)
{
    if (!data.hasUrls())
        return insertImage(store, pictureFile(data), tr("The dropped picture"), at);
    QPointF place = at;
    for (const QUrl &url : data.urls()) {
        if (const auto outcome = insertImageFile(store, url.toLocalFile(), place); !outcome)
            return outcome;
        place += QPointF(10, 10);
    }
    return Done {};
}

} // namespace tessaly
