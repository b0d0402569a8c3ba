// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/ByteStream.h"
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/InfoReport.h"

namespace tessaly {

namespace {

struct InfoOptions {
    QString input;
    bool json = false;
    InputOptions overrides;
};

ExitStatus runInfo(const InfoOptions &options, CommandContext &context)
{
    Console &console = context.console();
    const auto overrides = Overrides::read(options.overrides, console);
    if (!overrides)
        return ExitStatus::Failed;
    const QString name = ByteStream::displayName(options.input);
    const auto loaded = LoadedInput::read(options.input, options.overrides, *overrides, context);
    if (!loaded) {
        console.message(name, loaded.failure().message);
        return ExitStatus::Failed;
    }
    return context.print(options.json ? InfoReport::json(*loaded) : InfoReport::text(name, *loaded));
}

} // namespace

CommandBody setUpInfo(CommandOptions &options)
{
    auto chosen = std::make_shared<InfoOptions>();
    options.input(chosen->input, "INPUT", "Image or .tessaly document; - is an image on standard input");
    chosen->overrides.declareAnnotations(options);
    chosen->overrides.declareFrame(options);
    chosen->overrides.declareMaxPixels(options);
    options.flag(chosen->json, "--json", "Print JSON; all lengths are points, from the top left");
    return [chosen](CommandContext &context) { return runInfo(*chosen, context); };
}

} // namespace tessaly
