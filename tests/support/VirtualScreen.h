// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProcess>
#include <QString>

namespace tessaly::test {

/// Before the start of a process: it shall not outlive this one, however this one ends.
void endWithThisProcess(QProcess &process);

/// An X server without a monitor, alive as long as the object.
class VirtualScreen {
public:
    /// `geometry` and more `arguments` as Xvfb takes them, "640x480x24". `displayName()` is empty when the server did
    /// not start.
    explicit VirtualScreen(const QString &geometry, const QStringList &arguments = {});
    ~VirtualScreen();

    QString displayName() const { return m_displayName; }

    /// Runs a program on this display and waits for its end; the exit status, -1 if it did not run.
    int run(const QString &program, const QStringList &arguments) const;

private:
    QProcess m_server;
    QString m_displayName;
};

} // namespace tessaly::test
