// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/VirtualScreen.h"
#include "tests/support/Patience.h"

#include <csignal>
#include <sys/prctl.h>

namespace tessaly::test {

void endWithThisProcess(QProcess &process)
{
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

VirtualScreen::VirtualScreen(const QString &geometry, const QStringList &arguments)
{
    endWithThisProcess(m_server);
    // The server picks a free number and prints it when it is ready for clients.
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start(QStringLiteral("Xvfb"),
        QStringList { QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"), QStringLiteral("0"),
            geometry, QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset") }
            + arguments);
    while (!m_server.canReadLine() && m_server.waitForReadyRead(patience)) { }
    if (m_server.canReadLine())
        m_displayName = u':' + QString::fromLatin1(m_server.readLine().trimmed());
}

VirtualScreen::~VirtualScreen()
{
    m_server.terminate();
    if (!m_server.waitForFinished(patience))
        m_server.kill();
    m_server.waitForFinished(patience);
}

int VirtualScreen::run(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), m_displayName);
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    return process.waitForFinished(patience) ? process.exitCode() : -1;
}

} // namespace tessaly::test
