// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/FileKinds.h"

#include <QFileInfo>
#include <QMimeDatabase>

namespace tessaly {

QIcon FileKinds::icon(const QFileInfo &info) const { return icon(info.isDir() ? Folder : File); }

QString FileKinds::type(const QFileInfo &info) const
{
    if (info.isDir())
        return QFileIconProvider::type(info);
    return QMimeDatabase().mimeTypeForFile(info, QMimeDatabase::MatchExtension).comment();
}

} // namespace tessaly
