// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/Patience.h"
#include "tests/support/QuietBus.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace tessaly::test {

/// A desktop portal on a bus of its own that answers each call for a screenshot as it is told.
class FakePortal final : public QDBusVirtualObject {
public:
    static constexpr uint granted = 0, cancelled = 1, refused = 2;

    struct Turn {
        std::optional<uint> code; ///< of the response; never one without
        QString uri = {};
        QString error = {}; ///< of the call itself
        bool early = false; ///< the response comes before the call's reply
    };
    QList<Turn> turns; ///< what is left to do; silent after the last
    QList<bool> interactive; ///< of each call so far
    int withdrawn = 0;

    /// Starts the bus; this process's session bus from now on. Empty when it did not start.
    QByteArray startBus()
    {
        const QByteArray address = startQuietBus(m_bus, m_folder);
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        return address;
    }

    void stopBus()
    {
        leave();
        m_bus.terminate();
        m_bus.waitForFinished(patience);
    }

    /// Is found on the bus.
    bool appear()
    {
        QDBusConnection bus
            = QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), "fake portal");
        return bus.registerVirtualObject("/org/freedesktop/portal/desktop", this, QDBusConnection::SubPath)
            && bus.registerService("org.freedesktop.portal.Desktop");
    }

    void leave() { QDBusConnection::disconnectFromBus("fake portal"); }

    QString introspect(const QString &) const override { return {}; }

    bool handleMessage(const QDBusMessage &message, const QDBusConnection &bus) override
    {
        if (message.interface() == u"org.freedesktop.portal.Request" && message.member() == u"Close") {
            ++withdrawn;
            return true;
        }
        if (message.interface() != u"org.freedesktop.portal.Screenshot" || message.signature() != u"sa{sv}")
            return false;
        const auto options = qdbus_cast<QVariantMap>(message.arguments().at(1));
        interactive += options.value("interactive").toBool();
        const Turn turn = turns.isEmpty() ? Turn {} : turns.takeFirst();
        const QString sender = message.service().mid(1).replace(u'.', u'_');
        const QString token = options.value("handle_token").toString();
        const QString path = "/org/freedesktop/portal/desktop/request/" + sender + "/" + token;
        if (turn.early)
            respond(turn, path, bus);
        bus.send(turn.error.isEmpty() ? message.createReply(QVariant::fromValue(QDBusObjectPath(path)))
                                      : message.createErrorReply(turn.error, "no"));
        if (!turn.early)
            respond(turn, path, bus);
        return true;
    }

private:
    void respond(const Turn &turn, const QString &path, const QDBusConnection &bus)
    {
        if (!turn.code)
            return;
        QDBusMessage response = QDBusMessage::createSignal(path, "org.freedesktop.portal.Request", "Response");
        QVariantMap results;
        if (*turn.code == granted)
            results.insert("uri", turn.uri);
        bus.send(response << *turn.code << results);
    }

    QTemporaryDir m_folder;
    QProcess m_bus;
};

} // namespace tessaly::test
