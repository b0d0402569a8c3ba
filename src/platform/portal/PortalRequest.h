// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>

class QDBusMessage;

namespace tessaly {

/// One call of org.freedesktop.portal.Screenshot, from the question to its Response. Main thread only.
class PortalRequest final : public QObject {
    Q_OBJECT

public:
    enum class Manner {
        Quiet, ///< the desktop asks the user at most for the permission
        Interactive, ///< the user chooses in a dialog of the desktop
    };
    enum class End {
        Granted,
        Cancelled, ///< by the user
        Refused,
        Missing, ///< no portal, or none with this interface
        Silent, ///< no answer in time
    };
    struct Reply {
        End end = End::Silent;
        QString uri; ///< of the picture, when granted
    };

    explicit PortalRequest(QDBusConnection bus);
    /// Withdraws a question that is still open.
    ~PortalRequest() override;

    /// Once. `then` is called from the event loop, and may delete this.
    void ask(Manner manner, std::chrono::milliseconds patience, std::function<void(Reply)> then);

private Q_SLOTS:
    void onResponse(uint code, const QVariantMap &results);

private:
    void onCallReturned(const QDBusMessage &reply);
    void withdraw();
    void finish(Reply reply);

    QDBusConnection m_bus;
    QString m_path; ///< of the request's object; empty when nothing is open
    QTimer m_patience;
    std::function<void(Reply)> m_then;
};

} // namespace tessaly
