// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/TrayHost.h"

#include <QThread>

#include <memory>

namespace tessaly::test {

/// A panel with a tray on the session bus of this process. It answers while the test waits, in a thread of its own:
/// the program asks it before it shows anything.
class TrayPanel {
public:
    TrayPanel()
    {
        m_thread.start();
        m_context.moveToThread(&m_thread);
        operate([this] {
            m_host = std::make_unique<TrayHost>(QDBusConnection::connectToBus(
                QString::fromLocal8Bit(qgetenv("DBUS_SESSION_BUS_ADDRESS")), connectionName()));
        });
    }

    ~TrayPanel()
    {
        operate([this] {
            m_host.reset();
            QDBusConnection::disconnectFromBus(connectionName());
        });
        m_thread.quit();
        m_thread.wait();
    }

    bool start()
    {
        bool started = false;
        operate([&] { started = m_host->start(); });
        return started;
    }

    qsizetype iconCount()
    {
        qsizetype count = 0;
        operate([&] { count = m_host->items().size(); });
        return count;
    }

    QList<QSize> iconSizes()
    {
        QList<QSize> sizes;
        operate([&] { sizes = m_host->iconSizes(); });
        return sizes;
    }

    /// Clicks the entry of the menu that these labels lead to; false when there is none that can be clicked.
    bool click(const QStringList &path)
    {
        bool clicked = false;
        operate([&] { clicked = m_host->click(path); });
        return clicked;
    }

private:
    static QString connectionName() { return QStringLiteral("trayPanel"); }

    template <typename Operation>
    void operate(Operation operation)
    {
        QMetaObject::invokeMethod(&m_context, operation, Qt::BlockingQueuedConnection);
    }

    QThread m_thread;
    QObject m_context;
    std::unique_ptr<TrayHost> m_host;
};

} // namespace tessaly::test
