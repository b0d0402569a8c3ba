// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

class QDBusMessage;

namespace tessaly {

/// One question to the desktop portal that it answers by a Response. Main thread only.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    /// Where every portal is on the bus.
    static constexpr auto service = "org.freedesktop.portal.Desktop";
    static constexpr auto objectPath = "/org/freedesktop/portal/desktop";

    enum class End {
        Granted,
        Cancelled, ///< by the user
        Refused,
        Missing, ///< no portal, or none with this interface
        Silent, ///< no answer in time
    };
    struct Reply {
        End end = End::Silent;
        QVariantMap results = {}; ///< when granted
    };

    explicit PortalRequest(QDBusConnection bus);
    /// Withdraws a question that is still open.
    ~PortalRequest() override;

    /// A call of a method, without its arguments.
    static QDBusMessage call(const char *interface, const char *method);

    /// The option of every question by which the answer finds back; to be among those of the call.
    QVariantMap withToken(QVariantMap options) const;

    /// Once. `then` is called from the event loop, and may delete this.
    void ask(const QDBusMessage &call, std::chrono::milliseconds patience, std::function<void(Reply)> then);

private Q_SLOTS:
    void onResponse(uint code, const QVariantMap &results);

private:
    void onCallReturned(const QDBusMessage &reply);
    void withdraw();
    void finish(Reply reply);

    QDBusConnection m_bus;
    QString m_token;
    QString m_path; ///< of the request's object; empty when nothing is open
    QTimer m_patience;
    std::function<void(Reply)> m_then;
};

} // namespace tessaly
