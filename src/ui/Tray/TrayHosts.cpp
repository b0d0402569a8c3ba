// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tray/TrayHosts.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>

namespace tessaly {

static QString watcherName() { return QStringLiteral("org.kde.StatusNotifierWatcher"); }
static QString watcherPath() { return QStringLiteral("/StatusNotifierWatcher"); }

TrayHosts::TrayHosts(QObject *parent) : QObject(parent), m_embedding([this] { Q_EMIT changed(); })
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    auto *watcher = new QDBusServiceWatcher(watcherName(), bus, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &, const QString &owner) {
            if (owner.isEmpty())
                setNotifierHost(false);
            else
                ask();
        });
    bus.connect(
        watcherName(), watcherPath(), watcherName(), QStringLiteral("StatusNotifierHostRegistered"), this, SLOT(ask()));
    ask();
}

void TrayHosts::ask()
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        watcherName(), watcherPath(), QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call.setArguments({ watcherName(), QStringLiteral("IsStatusNotifierHostRegistered") });
    call.setAutoStartService(false);
    auto *answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        answer->deleteLater();
        setNotifierHost(reply.isValid() && reply.value().variant().toBool());
    });
}

void TrayHosts::setNotifierHost(bool there)
{
    m_hasNotifierHost = there;
    Q_EMIT changed();
}

} // namespace tessaly
