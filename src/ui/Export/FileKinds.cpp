// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/FileKinds.h"

#include "ui/Style/Icons.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMimeDatabase>

namespace tessaly {

static bool isDocument(const QFileInfo &info) { return info.isDir() && info.suffix() == u"tessaly"; }

FileKinds::FileKinds(QObject *parent) : QObject(parent), m_document(Icons::icon(QLatin1StringView("document"))) { }

QIcon FileKinds::icon(const QFileInfo &info) const
{
    if (isDocument(info))
        return m_document;
    return icon(info.isDir() ? Folder : File);
}

QString FileKinds::type(const QFileInfo &info) const
{
    if (isDocument(info))
        return QCoreApplication::translate("FileKinds", "Tessaly document");
    if (info.isDir())
        return QFileIconProvider::type(info);
    return QMimeDatabase().mimeTypeForFile(info, QMimeDatabase::MatchExtension).comment();
}

} // namespace tessaly
