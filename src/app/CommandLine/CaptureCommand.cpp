// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CaptureRecording.h"
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/OutputTargets.h"
#include "app/CommandLine/PictureEncoding.h"
#include "app/CommandLine/Text.h"
#include "core/History/HistoryPruning.h"

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

/// Keeps the capture in the history. The user has what was asked for whatever comes of it.
void record(CaptureRecording &recording, CommandContext &context)
{
    const int retentionDays = HistoryPruning::retentionDays(context.settings());
    if (const Outcome recorded = recording.finish(retentionDays); !recorded)
        context.console().message(recorded.failure().message);
}

Outcome writeCapture(const RasterImage &picture, const QString &path, OutputTargets &targets, CommandContext &context)
{
    const auto format = formatOfExtension(QFileInfo(path).suffix()).value_or(ExportFormat::Png);
    const auto bytes = encodePicture(picture, format, std::nullopt, context);
    if (!bytes)
        return bytes.failure();
    std::optional<CaptureRecording> recording;
    if (context.settings().value(SettingKeys::historyEnabled))
        recording.emplace(picture, format == ExportFormat::Png ? std::optional(*bytes) : std::nullopt);
    const Outcome written = targets.write(path, *bytes);
    if (written && recording)
        record(*recording, context);
    return written;
}

Outcome captureFullScreen(const CaptureOptions &options, CommandContext &context)
{
    auto targets = OutputTargets::create(options.output, {});
    if (!targets)
        return targets.failure();
    const auto path = targets->singlePath();
    if (!path)
        return path.failure();
    const auto source = context.environment().screenSource();
    if (!source)
        return source.failure();
    const auto picture = captureDisplay(**source, options.display.value_or(1));
    return picture ? writeCapture(*picture, *path, *targets, context) : Outcome(picture.failure());
}

ExitStatus runFullScreen(const CaptureOptions &options, CommandContext &context)
{
    if (options.output == u"-" && Console::printsToTerminal()) {
        context.console().message(Text::tr("Standard output is a terminal, which cannot show a picture."));
        return ExitStatus::WrongUsage;
    }
    return context.report(captureFullScreen(options, context));
}

CommandBody setUpFullScreen(CommandOptions &options)
{
    auto chosen = std::make_shared<CaptureOptions>();
    options.required(chosen->output, "-o,--output", "OUT",
        "Picture to write; its extension says the format, and without one it is PNG; - is PNG on standard output");
    options.wholeNumber(chosen->display, "--display", { 1, 1000 },
        "Which display to take, counted from 1, the primary one; by default 1");
    options.closing("The capture is also kept in the history (tessaly history --help), unless that is\n"
                    "switched off.");
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
