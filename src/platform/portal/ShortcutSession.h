// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/portal/PortalRequest.h"

#include <QDBusMessage>
#include <QHash>

#include <memory>

namespace tessaly {

/// A shortcut that the desktop is asked for.
struct WantedShortcut {
    QString id;
    QString description; ///< for the user
    QString trigger; ///< the keys that are proposed

    bool operator==(const WantedShortcut &) const = default;
};

/// One session of org.freedesktop.portal.GlobalShortcuts, in which the desktop is asked once for all shortcuts. Main
/// thread only.
class ShortcutSession final : public QObject {
    Q_OBJECT

public:
    /// The desktop may ask the user, which takes time.
    ShortcutSession(QDBusConnection bus, QList<WantedShortcut> wanted);
    ~ShortcutSession() override;

Q_SIGNALS:
    /// The keys of each shortcut in the desktop's words, by id; none of those that it refused. Again when the user has
    /// changed them.
    void given(const QHash<QString, QString> &triggers);
    void activated(const QString &id);
    /// By the desktop.
    void closed();

private Q_SLOTS:
    // Of whole messages: QtDBus looks up other types of slots by names that may not be registered yet.
    void onActivated(const QDBusMessage &message);
    void onChanged(const QDBusMessage &message);

private:
    void create();
    void bind();

    QDBusConnection m_bus;
    QList<WantedShortcut> m_wanted;
    QString m_path; ///< of the session's object; empty before there is one
    std::unique_ptr<PortalRequest> m_request;
};

} // namespace tessaly
