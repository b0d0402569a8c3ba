// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CommandLine.h"

#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/DesktopProgram.h"
#include "app/CommandLine/QuietLibraries.h"

#include <algorithm>
#include <cstring>

namespace tessaly {

namespace {

constexpr Command commands[] = {
    { "open", "Open pictures and documents in the editor", setUpOpen },
    { "export", "Write pictures with their marks, frame and watermark", setUpExport },
    { "document", "Make an editable document of a picture", setUpDocument },
    { "info", "Say what is in a picture or document", setUpInfo },
    { "capture", "Take a picture of the screen", setUpCapture },
    { "displays", "List the displays", setUpDisplays },
    { "windows", "List the windows that can be captured", setUpWindows },
    { "text", "Read the text and the codes in pictures", setUpText },
    { "history", "Find, open and remove the captures that were kept", setUpHistory },
    { "settings", "Show and change the settings", setUpSettings },
    { "collage", "Join pictures side by side or stacked", setUpCollage },
};

bool isCommand(int argc, char **argv)
{
    return argc > 1
        && std::ranges::any_of(commands, [&](const Command &row) { return std::strcmp(row.name, argv[1]) == 0; });
}

ExitStatus run(int argc, char **argv, CommandContext &context)
{
    if (!isCommand(argc, argv) && DesktopProgram::isMeant(argc, argv))
        return DesktopProgram::become(argv, context.console());
    const ParsedArguments parsed = parseArguments(argc, argv, commands);
    if (const auto *help = std::get_if<HelpText>(&parsed))
        return context.print(help->text);
    if (const auto *wrong = std::get_if<WrongUsage>(&parsed)) {
        context.console().message(wrong->sentence);
        return ExitStatus::WrongUsage;
    }
    return std::get<CommandBody>(parsed)(context);
}

} // namespace

int runCommandLine(int argc, char **argv, const CommandEnvironment &environment)
{
    const QuietLibraries quiet;
    CommandContext context(environment);
    return static_cast<int>(run(argc, argv, context));
}

} // namespace tessaly
