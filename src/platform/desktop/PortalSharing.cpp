// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/PortalSharing.h"

#include "platform/desktop/SessionBus.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QFile>

namespace tessaly {

namespace {

constexpr auto service = "org.freedesktop.portal.Desktop";
constexpr auto objectPath = "/org/freedesktop/portal/desktop";
constexpr auto openInterface = "org.freedesktop.portal.OpenURI";

QDBusMessage call(const char *interface, const char *method, const QVariantList &arguments, int timeoutMilliseconds)
{
    QDBusMessage message = QDBusMessage::createMethodCall(service, objectPath, interface, method);
    message.setArguments(arguments);
    return QDBusConnection::sessionBus().call(message, QDBus::Block, timeoutMilliseconds);
}

/// Whether the portal is there with the interface that opens files; empty when it did not say in time.
std::optional<bool> askPortal()
{
    constexpr int patienceMilliseconds = 300;
    if (!SessionBus::isThere())
        return false;
    const QDBusMessage reply = call("org.freedesktop.DBus.Properties", "Get",
        { QString::fromLatin1(openInterface), QStringLiteral("version") }, patienceMilliseconds);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return true;
    const bool late = reply.errorName() == u"org.freedesktop.DBus.Error.NoReply"
        || reply.errorName() == u"org.freedesktop.DBus.Error.Timeout";
    return late ? std::nullopt : std::optional(false);
}

Failure failure(const QString &path, const QString &reason)
{
    return { QCoreApplication::translate("PortalSharing", "%1 could not be handed over: %2.").arg(path, reason) };
}

} // namespace

bool PortalSharing::isAvailable() const
{
    if (!m_available)
        m_available = askPortal();
    return m_available.value_or(false);
}

Outcome PortalSharing::share(const QString &path)
{
    constexpr int patienceMilliseconds = 5000;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return failure(path, file.errorString());
    const QVariantMap options { { QStringLiteral("ask"), true } };
    const QDBusMessage reply = call(openInterface, "OpenFile",
        { QString(), QVariant::fromValue(QDBusUnixFileDescriptor(file.handle())), options }, patienceMilliseconds);
    if (reply.type() == QDBusMessage::ErrorMessage)
        return failure(path, reply.errorMessage());
    return Done {};
}

} // namespace tessaly
