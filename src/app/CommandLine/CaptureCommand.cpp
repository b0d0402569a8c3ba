// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/OutputTargets.h"
#include "app/CommandLine/PictureEncoding.h"
#include "app/CommandLine/Text.h"

#include <QFileInfo>

namespace tessaly {

namespace {

struct CaptureOptions {
    QString output;
    std::optional<qint64> display;
};

Result<RasterImage> captureDisplay(ScreenSource &source, qint64 number)
{
    const auto displays = source.displays();
    if (!displays)
        return displays.failure();
    if (number > displays->size())
        return Failure { Text::tr("There is no display %1; the last one is %2.")
                             .arg(QString::number(number), QString::number(displays->size())) };
    const Display &display = displays->at(number - 1);
    return source.capture(display.pixelRect, display.scale);
}

Outcome captureFullScreen(const CaptureOptions &options, CommandContext &context)
{
    auto targets = OutputTargets::create(options.output, {});
    if (!targets)
        return targets.failure();
    if (targets->isFolder())
        return Failure { Text::tr("%1 is a folder; name the file in it.").arg(options.output) };
    const auto path = targets->pathFor({}, {});
    if (!path)
        return path.failure();
    const auto source = context.environment().screenSource();
    if (!source)
        return source.failure();
    const auto picture = captureDisplay(**source, options.display.value_or(1));
    if (!picture)
        return picture.failure();
    const auto format = formatOfExtension(QFileInfo(*path).suffix()).value_or(ExportFormat::Png);
    const auto bytes = encodePicture(*picture, format, std::nullopt, context);
    return bytes ? targets->write(*path, *bytes) : Outcome(bytes.failure());
}

ExitStatus runFullScreen(const CaptureOptions &options, CommandContext &context)
{
    if (options.output == u"-" && Console::printsToTerminal()) {
        context.console().message(Text::tr("Standard output is a terminal, which cannot show a picture."));
        return ExitStatus::WrongUsage;
    }
    const Outcome captured = captureFullScreen(options, context);
    if (captured)
        return ExitStatus::Done;
    context.console().message(captured.failure().message);
    return ExitStatus::Failed;
}

CommandBody setUpFullScreen(CommandOptions &options)
{
    auto chosen = std::make_shared<CaptureOptions>();
    options.required(chosen->output, "-o,--output", "OUT",
        "Picture to write; its extension says the format, and without one it is PNG; - is PNG on standard output");
    options.wholeNumber(chosen->display, "--display", { 1, 1000 },
        "Which display to take, counted from 1, the primary one; by default 1");
    return [chosen](CommandContext &context) { return runFullScreen(*chosen, context); };
}

constexpr Command captureModes[] = {
    { "full-screen", "The whole of one display, at its own pixels", setUpFullScreen },
};

} // namespace

CommandBody setUpCapture(CommandOptions &options)
{
    options.commands(captureModes);
    return {};
}

} // namespace tessaly
