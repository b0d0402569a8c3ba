// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/DragFile.h"

#include "core/Base/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>

namespace tessaly {

QString dragFileName(const Clock &clock)
{
    return QStringLiteral("Tessaly ") + QLocale::c().toString(clock.now(), u"yyyy-MM-dd 'at' HH.mm.ss");
}

Result<QString> writeDragFile(const QByteArray &bytes, const QString &fileName, const QString &temporaryFolder)
{
    QDir folder(QDir(temporaryFolder).filePath(QStringLiteral("Drag")));
    folder.removeRecursively();
    if (!folder.mkpath(QStringLiteral(".")))
        return Failure {
            QCoreApplication::translate("DragFile", "The folder %1 could not be made.").arg(folder.path())
        };
    const QString path = folder.filePath(fileName);
    if (const Outcome written = SafeFile::write(path, bytes); !written)
        return written.failure();
    return path;
}

} // namespace tessaly
