// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/QuietBus.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QDBusVirtualObject>

namespace tessaly::test {

struct PortalShortcut {
    QString id;
    QVariantMap properties;
};

inline QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

/// A desktop portal on a bus of its own that offers global shortcuts and answers as it is told.
class FakeShortcutsPortal final : public QDBusVirtualObject {
public:
    static constexpr uint granted = 0, cancelled = 1;

    using Shortcut = PortalShortcut;

    bool offersShortcuts = true;
    uint answer = granted; ///< to each BindShortcuts
    QMap<QString, QString> triggers; ///< that the user gives, by id
    QList<QList<Shortcut>> asked; ///< at each BindShortcuts so far
    QStringList sessions; ///< that are open

    /// Starts the bus; this process's session bus from now on.
    bool startBus()
    {
        qDBusRegisterMetaType<Shortcut>();
        qDBusRegisterMetaType<QList<Shortcut>>();
        qputenv("DBUS_SESSION_BUS_ADDRESS", startQuietBus(m_bus, m_folder));
        return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS");
    }
    void stopBus()
    {
        leave();
        m_bus.terminate();
        m_bus.waitForFinished();
    }

    bool appear()
    {
        QDBusConnection bus
            = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), "fake shortcuts");
        return bus.registerVirtualObject("/org/freedesktop/portal/desktop", this, QDBusConnection::SubPath)
            && bus.registerService("org.freedesktop.portal.Desktop");
    }
    void leave()
    {
        sessions.clear();
        // The name is free at once, and not when the bus gets to know of the end.
        if (QDBusConnection bus("fake shortcuts"); bus.isConnected())
            bus.unregisterService("org.freedesktop.portal.Desktop");
        QDBusConnection::disconnectFromBus("fake shortcuts");
    }

    void activate(const QString &session, const QString &id) const
    {
        signal("Activated",
            { QVariant::fromValue(QDBusObjectPath(session)), id, QVariant::fromValue(qulonglong(7)), QVariantMap() });
    }
    void changeTriggers(const QMap<QString, QString> &now)
    {
        triggers = now;
        signal("ShortcutsChanged",
            { QVariant::fromValue(QDBusObjectPath(sessions.last())), QVariant::fromValue(described()) });
    }

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        const QVariantList arguments = message.arguments();
        const QString member = message.member();
        if (message.interface() == u"org.freedesktop.DBus.Properties") {
            bus.send(offersShortcuts
                    ? message.createReply(QVariant::fromValue(QDBusVariant(QVariant(1u))))
                    : message.createErrorReply("org.freedesktop.DBus.Error.InvalidArgs", "No such interface"));
        } else if (member == u"Close") {
            sessions.removeAll(message.path());
        } else if (member == u"CreateSession") {
            const auto options = qdbus_cast<QVariantMap>(arguments.at(0));
            const QString path = QStringLiteral("/org/freedesktop/portal/desktop/session/%1/%2")
                                     .arg(sender(message), options.value("session_handle_token").toString());
            sessions += path;
            respond(message, options, granted, { { "session_handle", path } }, bus);
        } else if (member == u"BindShortcuts") {
            asked += qdbus_cast<QList<Shortcut>>(arguments.at(1));
            const QVariantMap results { { "shortcuts", QVariant::fromValue(described()) } };
            respond(message, qdbus_cast<QVariantMap>(arguments.at(3)), answer,
                answer == granted ? results : QVariantMap(), bus);
        } else {
            return false;
        }
        return true;
    }

private:
    static QString sender(const QDBusMessage &message) { return message.service().mid(1).replace(u'.', u'_'); }

    QList<Shortcut> described() const
    {
        QList<Shortcut> list;
        for (auto each = triggers.cbegin(); each != triggers.cend(); ++each)
            list += { each.key(), { { "trigger_description", each.value() } } };
        return list;
    }

    static void signal(const char *name, const QVariantList &arguments)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.GlobalShortcuts", name);
        signal.setArguments(arguments);
        QDBusConnection("fake shortcuts").send(signal);
    }

    static void respond(const QDBusMessage &message, const QVariantMap &options, uint code, const QVariantMap &results,
        const QDBusConnection &bus)
    {
        const QString path = QStringLiteral("/org/freedesktop/portal/desktop/request/%1/%2")
                                 .arg(sender(message), options.value("handle_token").toString());
        bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(path))));
        bus.send(QDBusMessage::createSignal(path, "org.freedesktop.portal.Request", "Response") << code << results);
    }

    QTemporaryDir m_folder;
    QProcess m_bus;
};

} // namespace tessaly::test
