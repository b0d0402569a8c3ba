// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/DragFile.h"

#include "core/Base/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QStandardPaths>

namespace tessaly {

/// Writes the only file of a folder.
static Result<QString> writeAlone(const QByteArray &bytes, const QString &fileName, const QString &folderPath)
{
    QDir folder(folderPath);
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

QString dragFileName(const Clock &clock)
{
    return QStringLiteral("Tessaly ") + QLocale::c().toString(clock.now(), u"yyyy-MM-dd 'at' HH.mm.ss");
}

QString privateTemporaryFolder()
{
    // Qt refuses a runtime folder that others may enter.
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + QStringLiteral("/tessaly");
}

Result<QString> writeDragFile(const QByteArray &bytes, const QString &fileName, const QString &temporaryFolder)
{
    return writeAlone(bytes, fileName, QDir(temporaryFolder).filePath(QStringLiteral("Drag")));
}

Result<QString> writeShareFile(const QByteArray &bytes, const QString &fileName, const QString &temporaryFolder)
{
    return writeAlone(bytes, fileName, QDir(temporaryFolder).filePath(QStringLiteral("Share")));
}

} // namespace tessaly
