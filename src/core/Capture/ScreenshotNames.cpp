// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/ScreenshotNames.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace tessaly::ScreenshotNames {

QString timestamp(const QDateTime &time) { return QLocale::c().toString(time, u"yyyy-MM-dd 'at' HH.mm.ss"); }

QString fileName(const QDateTime &time, int number, QLatin1StringView extension)
{
    const QString stem = QStringLiteral("Screenshot ") + timestamp(time);
    return (number < 2 ? stem : QStringLiteral("%1 %2").arg(stem).arg(number)) + u'.' + extension;
}

QString freePath(const QString &folder, const QDateTime &time, QLatin1StringView extension)
{
    for (int number = 1;; ++number) {
        const QFileInfo file(QDir(folder), fileName(time, number, extension));
        if (!file.exists() && !file.isSymLink())
            return file.filePath();
    }
}

} // namespace tessaly::ScreenshotNames
