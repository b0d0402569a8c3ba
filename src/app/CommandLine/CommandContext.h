// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandLine.h"
#include "app/CommandLine/Console.h"
#include "core/Preferences/Settings.h"

class QCoreApplication;

namespace tessaly {

/// What a running command uses. The costly parts come into being when they are first asked for.
class CommandContext {
public:
    explicit CommandContext(const CommandEnvironment &environment);
    ~CommandContext();

    Console &console() { return m_console; }
    const CommandEnvironment &environment() const { return m_environment; }

    /// The user's settings; when they cannot be read a message says so, and the defaults hold.
    Settings &settings();

    /// Writes a command's result to standard output; the status says whether it went.
    ExitStatus print(const QByteArray &result);

    /// Says why it failed, if it did.
    ExitStatus report(const Outcome &outcome);

    /// Makes the application object that fonts and waiting for answers need, without a display.
    void requireApplication();

    /// Makes the smaller one that waiting alone needs. Neither where there is one already.
    void requireEventLoop();

private:
    const CommandEnvironment &m_environment;
    Console m_console;
    std::unique_ptr<Settings> m_settings;
    char m_name[8] = "tessaly"; // the application object keeps references to its arguments
    char *m_arguments[2] = { m_name, nullptr };
    int m_argumentCount = 1;
    std::unique_ptr<QCoreApplication> m_application;
};

} // namespace tessaly
