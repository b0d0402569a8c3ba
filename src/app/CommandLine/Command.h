// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace tessaly {

class CommandContext;
class CommandOptions;

/// How a run ends, as the process's exit status.
enum class ExitStatus { Done = 0, Failed = 1, WrongUsage = 2 };

/// The work of a command whose options are parsed.
using CommandBody = std::function<ExitStatus(CommandContext &)>;

/// One row of the table of commands.
struct Command {
    const char *name;
    const char *summary; ///< one line of help

    /// Declares what the command accepts, and returns the work that reads it. A row that only groups other commands
    /// declares them and returns nothing.
    CommandBody (*setUp)(CommandOptions &options);
};

CommandBody setUpExport(CommandOptions &options);
CommandBody setUpDocument(CommandOptions &options);
CommandBody setUpInfo(CommandOptions &options);
CommandBody setUpCapture(CommandOptions &options);
CommandBody setUpDisplays(CommandOptions &options);
CommandBody setUpWindows(CommandOptions &options);
CommandBody setUpCollage(CommandOptions &options);
CommandBody setUpText(CommandOptions &options);
CommandBody setUpHistory(CommandOptions &options);
CommandBody setUpOpen(CommandOptions &options);
CommandBody setUpSettings(CommandOptions &options);

} // namespace tessaly
