// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal/PortalHotkeys.h"

#include "core/Hotkey/CaptureHotKey.h"
#include "platform/desktop/SessionBus.h"
#include "platform/portal/ShortcutSession.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QMap>

namespace tessaly {

struct PortalHotkeys::Implementation : QObject {
    explicit Implementation(PortalHotkeys &owner);

    void askVersion();
    void setAbility(Ability now);
    void bindSoon();
    void bind();
    void forgetSession();
    void press(const QString &id) const;
    void tellChanged() const;

    struct Wanted {
        quint32 identifier;
        QString trigger;
    };

    PortalHotkeys &owner;
    QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusServiceWatcher portal { PortalRequest::service, bus, QDBusServiceWatcher::WatchForOwnerChange };
    Ability ability = Ability::None;
    QMap<CaptureAction, Wanted> wanted;
    bool isDue = false; ///< to compare what is wanted with what was asked for
    QList<WantedShortcut> asked; ///< in the session
    std::unique_ptr<ShortcutSession> session;
    std::optional<QHash<QString, QString>> given; ///< by raw value; absent while the desktop has not answered
};

PortalHotkeys::Implementation::Implementation(PortalHotkeys &ownerOfThis) : owner(ownerOfThis)
{
    connect(&portal, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString &, const QString &, const QString &newOwner) {
            forgetSession();
            setAbility(Ability::None);
            if (!newOwner.isEmpty())
                askVersion();
        });
    askVersion();
}

/// Only a portal that has the interface tells its version.
void PortalHotkeys::Implementation::askVersion()
{
    QDBusMessage question = PortalRequest::call("org.freedesktop.DBus.Properties", "Get");
    question << QStringLiteral("org.freedesktop.portal.GlobalShortcuts") << QStringLiteral("version");
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        setAbility(reply.isValid() && reply.value().variant().toUInt() > 0 ? Ability::Asks : Ability::None);
        answer->deleteLater();
    });
}

void PortalHotkeys::Implementation::setAbility(Ability now)
{
    if (std::exchange(ability, now) != now)
        tellChanged();
}

void PortalHotkeys::Implementation::tellChanged() const
{
    if (owner.changed)
        owner.changed();
}

void PortalHotkeys::Implementation::bindSoon()
{
    if (!std::exchange(isDue, true))
        QMetaObject::invokeMethod(this, &Implementation::bind, Qt::QueuedConnection);
}

/// A session takes shortcuts once, so that others need a new one; and the user may be asked, so that the same do not.
void PortalHotkeys::Implementation::bind()
{
    isDue = false;
    QList<WantedShortcut> shortcuts;
    for (auto each = wanted.cbegin(); each != wanted.cend(); ++each)
        shortcuts += { QString(rawValue(each.key())), captureActionLabel(each.key()), each->trigger };
    if (shortcuts == asked)
        return;
    forgetSession();
    asked = shortcuts;
    if (shortcuts.isEmpty())
        return;
    session = std::make_unique<ShortcutSession>(bus, shortcuts);
    connect(session.get(), &ShortcutSession::activated, this, &Implementation::press);
    connect(session.get(), &ShortcutSession::given, this, [this](const QHash<QString, QString> &triggers) {
        given = triggers;
        tellChanged();
    });
    const auto endSession = [this] {
        session.reset();
        given.emplace();
        tellChanged();
    };
    connect(session.get(), &ShortcutSession::closed, this, endSession, Qt::QueuedConnection);
}

void PortalHotkeys::Implementation::forgetSession()
{
    session.reset();
    asked.clear();
    given.reset();
}

void PortalHotkeys::Implementation::press(const QString &id) const
{
    const auto action = enumFromRaw<CaptureAction>(id);
    if (action && wanted.contains(*action) && owner.pressed)
        owner.pressed(wanted.value(*action).identifier);
}

PortalHotkeys::PortalHotkeys()
{
    if (SessionBus::isThere())
        m_implementation = std::make_unique<Implementation>(*this);
}

PortalHotkeys::~PortalHotkeys() = default;

HotkeyBackend::Ability PortalHotkeys::ability() const
{
    return m_implementation ? m_implementation->ability : Ability::None;
}

bool PortalHotkeys::add(quint32 identifier, CaptureAction action, quint32 keyCode, quint32 modifiers)
{
    if (ability() == Ability::None)
        return false;
    const CaptureHotKey hotKey { keyCode, modifiers, {} };
    m_implementation->wanted.insert(action, { identifier, hotKey.triggerText() });
    m_implementation->bindSoon();
    return true;
}

void PortalHotkeys::remove(quint32 identifier)
{
    if (!m_implementation)
        return;
    m_implementation->wanted.removeIf([=](const std::pair<const CaptureAction &, Implementation::Wanted &> &each) {
        return each.second.identifier == identifier;
    });
    m_implementation->bindSoon();
}

std::optional<QString> PortalHotkeys::given(CaptureAction action) const
{
    if (!m_implementation || !m_implementation->given)
        return std::nullopt;
    return m_implementation->given->value(QString(rawValue(action)));
}

} // namespace tessaly
