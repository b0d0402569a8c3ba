// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/Canvas/CanvasDrop.h"

#include "core/Desktop/DroppedContent.h"
#include "core/Editing/MarkClipboard.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <algorithm>

namespace tessaly {

namespace {

bool isPictureFile(const QString &path)
{
    const QFileInfo file(path);
    return file.isFile() && file.suffix().compare(u"tessaly", Qt::CaseInsensitive) != 0;
}

} // namespace

bool CanvasDrop::canTake(const QMimeData &data)
{
    const DroppedContent content = DroppedContent::offered(data);
    return !content.isEmpty() && !content.hasLinks && std::ranges::all_of(content.paths, isPictureFile);
}

Outcome CanvasDrop::take(const QMimeData &data, AnnotationStore &store, QPointF at)
{
    const DroppedContent content = DroppedContent::taken(data);
    if (content.hasPicture)
        return insertImage(
            store, content.picture, QCoreApplication::translate("CanvasDrop", "The dropped picture"), at);
    QPointF place = at;
    for (const QString &path : content.paths) {
        if (const auto outcome = insertImageFile(store, path, place); !outcome)
            return outcome;
        place += QPointF(10, 10);
    }
    return Done {};
}

} // namespace tessaly
