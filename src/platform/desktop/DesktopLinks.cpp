// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/DesktopLinks.h"

#include "platform/desktop/SessionBus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

namespace tessaly {

namespace {

constexpr auto service = "org.freedesktop.FileManager1";

/// Whether a file manager that can show files is running, or would be started by asking it.
bool hasFileManager()
{
    if (!SessionBus::isThere())
        return false;
    QDBusConnectionInterface *bus = QDBusConnection::sessionBus().interface();
    if (!bus)
        return false;
    const QString name = QString::fromLatin1(service);
    return bus->isServiceRegistered(name) || bus->activatableServiceNames().value().contains(name);
}

/// What this program tells its own Qt: another Qt program's windows would stay unseen or be drawn slowly with it.
constexpr const char *ownVariables[]
    = { "QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "QT_WAYLAND_CLIENT_BUFFER_INTEGRATION" };

bool openOutside(const QUrl &url)
{
    QList<QByteArray> values;
    for (const char *variable : ownVariables) {
        values += qgetenv(variable);
        qunsetenv(variable);
    }
    const bool opened = QDesktopServices::openUrl(url);
    for (qsizetype index = 0; index < values.size(); ++index) {
        if (!values[index].isEmpty())
            qputenv(ownVariables[index], values[index]);
    }
    return opened;
}

bool openFolderOf(const QFileInfo &item)
{
    return openOutside(QUrl::fromLocalFile(item.isDir() ? item.absoluteFilePath() : item.absolutePath()));
}

} // namespace

bool DesktopLinks::open(const QUrl &url) { return openOutside(url); }

bool DesktopLinks::reveal(const QString &path)
{
    const QFileInfo item(path);
    if (!item.exists())
        return false;
    if (!hasFileManager())
        return openFolderOf(item);
    QDBusMessage message = QDBusMessage::createMethodCall(QString::fromLatin1(service),
        QStringLiteral("/org/freedesktop/FileManager1"), QString::fromLatin1(service), QStringLiteral("ShowItems"));
    message << QStringList { QUrl::fromLocalFile(item.absoluteFilePath()).toString(QUrl::FullyEncoded) } << QString();
    // Starting a file manager takes seconds; nobody waits for it here.
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(message));
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, answer, [answer, item] {
        if (answer->isError())
            openFolderOf(item);
        answer->deleteLater();
    });
    return true;
}

} // namespace tessaly
