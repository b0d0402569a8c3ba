// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CommandContext.h"

#include <QGuiApplication>

namespace tessaly {

CommandContext::CommandContext(const CommandEnvironment &environment) : m_environment(environment) { }

CommandContext::~CommandContext() = default;

Settings &CommandContext::settings()
{
    if (!m_settings) {
        m_settings = std::make_unique<Settings>(Settings::defaultPath());
        if (m_settings->problem())
            m_console.message(Settings::defaultPath(), m_settings->problem()->message);
    }
    return *m_settings;
}

ExitStatus CommandContext::print(const QByteArray &result) { return report(m_console.print(result)); }

ExitStatus CommandContext::report(const Outcome &outcome)
{
    if (outcome)
        return ExitStatus::Done;
    m_console.message(outcome.failure().message);
    return ExitStatus::Failed;
}

void CommandContext::requireApplication()
{
    if (QCoreApplication::instance())
        return;
    // A desktop's own choice of platform would connect to its display, and end the program where there is none.
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.startsWith("offscreen") && !platform.startsWith("minimal"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    m_application = std::make_unique<QGuiApplication>(m_argumentCount, m_arguments);
}

void CommandContext::requireEventLoop()
{
    if (!QCoreApplication::instance())
        m_application = std::make_unique<QCoreApplication>(m_argumentCount, m_arguments);
}

} // namespace tessaly
