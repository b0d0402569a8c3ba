// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Style/DesktopAppearance.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QTimer>

namespace tessaly {

namespace {

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto path = "/org/freedesktop/portal/desktop";
constexpr auto interface = "org.freedesktop.portal.Settings";
constexpr auto group = "org.freedesktop.appearance";
constexpr auto key = "color-scheme";

constexpr int timeoutMilliseconds = 2000; // a portal that has to be started first takes about one second

/// The portal's numbers: 0 no preference, 1 dark, 2 light. `Read` packs the value twice.
bool isDark(QVariant value)
{
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value.toUInt() == 1;
}

} // namespace

DesktopAppearance::DesktopAppearance(QObject *parent) : QObject(parent)
{
    // Connecting to the bus takes milliseconds that the first frame should not wait for.
    if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS"))
        QTimer::singleShot(0, this, &DesktopAppearance::ask);
}

void DesktopAppearance::ask()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
        SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    message << QString::fromLatin1(group) << QString::fromLatin1(key);
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(message, timeoutMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        if (!reply.isError()) // no portal is no answer
            Q_EMIT answered(isDark(QVariant::fromValue(reply.value())));
    });
}

void DesktopAppearance::settingChanged(
    const QString &changedGroup, const QString &changedKey, const QDBusVariant &value)
{
    if (changedGroup == QLatin1StringView(group) && changedKey == QLatin1StringView(key))
        Q_EMIT answered(isDark(value.variant()));
}

} // namespace tessaly
