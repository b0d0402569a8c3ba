// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/ShortcutSession.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusObjectPath>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

constexpr auto shortcutsInterface = "org.freedesktop.portal.GlobalShortcuts";
constexpr auto sessionInterface = "org.freedesktop.portal.Session";
constexpr auto patience = 30s;
constexpr auto dialogPatience = 10min;

/// As it travels: (sa{sv}).
struct Shortcut {
    QString id;
    QVariantMap properties;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Shortcut &shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Shortcut &shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

QHash<QString, QString> triggersIn(const QVariant &shortcuts)
{
    QHash<QString, QString> triggers;
    if (!shortcuts.canConvert<QDBusArgument>() || shortcuts.value<QDBusArgument>().currentSignature() != u"a(sa{sv})")
        return triggers;
    for (const Shortcut &each : qdbus_cast<QList<Shortcut>>(shortcuts.value<QDBusArgument>()))
        triggers.insert(each.id, each.properties.value(QStringLiteral("trigger_description")).toString());
    return triggers;
}

/// Portals send the session's path as a text, and may send it as a path.
QString pathIn(const QVariant &handle)
{
    return handle.metaType() == QMetaType::fromType<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path()
                                                                       : handle.toString();
}

} // namespace

ShortcutSession::ShortcutSession(QDBusConnection bus, QList<WantedShortcut> wanted) :
    m_bus(std::move(bus)),
    m_wanted(std::move(wanted))
{
    qDBusRegisterMetaType<Shortcut>();
    qDBusRegisterMetaType<QList<Shortcut>>();
    const auto listen = [this](const char *signal, const char *slot) {
        m_bus.connect(PortalRequest::service, PortalRequest::objectPath, shortcutsInterface, signal, this, slot);
    };
    listen("Activated", SLOT(onActivated(QDBusMessage)));
    listen("ShortcutsChanged", SLOT(onChanged(QDBusMessage)));
    create();
}

ShortcutSession::~ShortcutSession()
{
    m_request.reset(); // a dialog that is still open goes too
    if (!m_path.isEmpty())
        m_bus.send(QDBusMessage::createMethodCall(PortalRequest::service, m_path, sessionInterface, "Close"));
}

void ShortcutSession::create()
{
    m_request = std::make_unique<PortalRequest>(m_bus);
    QDBusMessage call = PortalRequest::call(shortcutsInterface, "CreateSession");
    call << m_request->withToken({ { QStringLiteral("session_handle_token"), QStringLiteral("tessaly_hot_keys") } });
    m_request->ask(call, patience, [this](const PortalRequest::Reply &reply) {
        m_path = pathIn(reply.results.value(QStringLiteral("session_handle")));
        if (reply.end != PortalRequest::End::Granted || m_path.isEmpty()) {
            Q_EMIT given({});
            return;
        }
        m_bus.connect(PortalRequest::service, m_path, sessionInterface, "Closed", this, SIGNAL(closed()));
        bind();
    });
}

void ShortcutSession::bind()
{
    QList<Shortcut> shortcuts;
    for (const WantedShortcut &wanted : m_wanted) {
        QVariantMap properties { { QStringLiteral("description"), wanted.description } };
        if (!wanted.trigger.isEmpty())
            properties.insert(QStringLiteral("preferred_trigger"), wanted.trigger);
        shortcuts += Shortcut { wanted.id, properties };
    }
    auto request = std::make_unique<PortalRequest>(m_bus);
    QDBusMessage call = PortalRequest::call(shortcutsInterface, "BindShortcuts");
    call << QVariant::fromValue(QDBusObjectPath(m_path)) << QVariant::fromValue(shortcuts)
         << QString() // no window of ours is the dialog's parent
         << request->withToken({});
    request->ask(call, dialogPatience, [this](const PortalRequest::Reply &reply) {
        const bool isGranted = reply.end == PortalRequest::End::Granted;
        Q_EMIT given(
            isGranted ? triggersIn(reply.results.value(QStringLiteral("shortcuts"))) : QHash<QString, QString>());
    });
    m_request = std::move(request);
}

void ShortcutSession::onActivated(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.size() >= 2 && pathIn(arguments.first()) == m_path)
        Q_EMIT activated(arguments.at(1).toString());
}

void ShortcutSession::onChanged(const QDBusMessage &message)
{
    const QVariantList arguments = message.arguments();
    if (arguments.size() == 2 && pathIn(arguments.first()) == m_path)
        Q_EMIT given(triggersIn(arguments.last()));
}

} // namespace tessaly
