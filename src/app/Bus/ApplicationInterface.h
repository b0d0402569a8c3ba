// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariantMap>

class QDBusMessage;

namespace tessaly {

class AutomationService;

/// How desktops, and a second start, speak with a program that runs. Part of the service's object.
class ApplicationInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationInterface(AutomationService &service);

public Q_SLOTS: // by the names that they have on the bus
    void Activate(const QVariantMap &platformData, const QDBusMessage &call);
    /// Opens every file, each on its own: one that cannot be read does not keep the others away.
    void Open(const QStringList &uris, const QVariantMap &platformData, const QDBusMessage &call);
    /// The action is the name of one of the five operations, with its destination as the parameter if any, or
    /// "OpenHistoryEntry" with ids.
    void ActivateAction(const QString &actionName, const QVariantList &parameters, const QVariantMap &platformData,
        const QDBusMessage &call);

private:
    /// False for a caller that is not heard, which is then told.
    bool admits(const QDBusMessage &call, const QVariantMap &platformData) const;
    static void refuse(const QDBusMessage &call, const QString &error, const QString &sentence);

    AutomationService &m_service;
};

} // namespace tessaly
