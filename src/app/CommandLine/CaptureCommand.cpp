// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CaptureOptions.h"
#include "app/CommandLine/CaptureRecording.h"
#include "app/CommandLine/Command.h"
#include "app/CommandLine/CommandContext.h"
#include "app/CommandLine/CommandOptions.h"
#include "app/CommandLine/DesktopProgram.h"
#include "app/CommandLine/InterruptionGuard.h"
#include "app/CommandLine/OutputTargets.h"
#include "app/CommandLine/PictureEncoding.h"
#include "app/CommandLine/ScreenTaking.h"
#include "app/CommandLine/Text.h"
#include "app/CommandLine/TextReading.h"
#include "core/Base/Clock.h"
#include "core/Base/SafeFile.h"
#include "core/Capture/ScreenshotNames.h"
#include "core/History/HistoryPruning.h"

#include <QFile>
#include <QFileInfo>
#include <QThread>

namespace tessaly {

namespace {

/// Keeps the capture in the history. The user has what was asked for whatever comes of it.
void record(CaptureRecording &recording, CommandContext &context)
{
    const int retentionDays = HistoryPruning::retentionDays(context.settings());
    if (const Outcome recorded = recording.finish(retentionDays); !recorded)
        context.console().message(recorded.failure().message);
}

using Write = std::function<Outcome(const QByteArray &bytes)>;

Outcome writeCapture(const RasterImage &picture, ExportFormat format, const Write &write, CommandContext &context)
{
    const auto bytes = encodePicture(picture, format, std::nullopt, context);
    if (!bytes)
        return bytes.failure();
    std::optional<CaptureRecording> recording;
    if (context.settings().value(SettingKeys::historyEnabled))
        recording.emplace(picture, format == ExportFormat::Png ? std::optional(*bytes) : std::nullopt);
    const Outcome written = write(*bytes);
    if (written && recording)
        record(*recording, context);
    return written;
}

/// A Tessaly that watches a folder for the desktop's screenshots must not take this one for one of them.
void announce(const QString &path, CommandContext &context)
{
    const Settings &settings = context.settings();
    const QString watched = settings.value(SettingKeys::systemScreenshotsFolder);
    if (!settings.value(SettingKeys::watchSystemScreenshots) || watched.isEmpty() || QFileInfo::exists(path)
        || QFileInfo(watched).canonicalFilePath() != QFileInfo(QFileInfo(path).absolutePath()).canonicalFilePath())
        return;
    context.requireEventLoop();
    context.environment().announceFile(QFileInfo(path).absoluteFilePath());
}

/// Of processes that save in the same second each gets a name of its own.
Result<QString> writeNew(const QString &folder, ExportFormat format, const QByteArray &bytes, CommandContext &context)
{
    const InterruptionGuard guard;
    const QDateTime now = SystemClock().now();
    for (;;) {
        const QString path = ScreenshotNames::freePath(folder, now, extension(format));
        announce(path, context);
        const auto created = SafeFile::create(path, bytes);
        if (!created)
            return created.failure();
        if (*created == SafeFile::Created::Yes)
            return path;
    }
}

/// The picture, after the delay that was asked for.
Result<RasterImage> taken(const CaptureOptions &options, CommandContext &context)
{
    QThread::sleep(static_cast<unsigned long>(options.delay.value_or(0)));
    auto taking = ScreenTaking::create(context);
    return taking ? taking->take(options) : taking.failure();
}

ExitStatus captureText(const CaptureOptions &options, CommandContext &context)
{
    auto picture = taken(options, context);
    if (!picture)
        return context.report(picture.failure());
    auto reading = TextReading::create(context);
    if (!reading)
        return context.report(reading.failure());
    const auto content = reading->read(std::move(*picture), TextRecognizer::Codes::Skip);
    if (!content)
        return context.report(content.failure());
    return context.print(content->lines.isEmpty() ? QByteArray() : content->text().toUtf8() + '\n');
}

Outcome captureFile(const CaptureOptions &options, const QString &output, CommandContext &context)
{
    auto targets = OutputTargets::create(output, {});
    if (!targets)
        return targets.failure();
    const auto path = targets->singlePath();
    if (!path)
        return path.failure();
    const auto picture = taken(options, context);
    if (!picture)
        return picture.failure();
    const auto format = formatOfExtension(QFileInfo(*path).suffix()).value_or(ExportFormat::Png);
    const auto write = [&](const QByteArray &bytes) {
        announce(*path, context);
        return targets->write(*path, bytes);
    };
    return writeCapture(*picture, format, write, context);
}

/// To a new file in the save folder, in the format that the user last chose; its path is printed.
ExitStatus captureNewFile(const CaptureOptions &options, CommandContext &context)
{
    const QString folder = context.settings().value(SettingKeys::defaultSaveFolder);
    if (folder.isEmpty() || !QFileInfo(folder).isDir())
        return context.report(Failure { Text::tr("No save folder is chosen, or it is gone; name the file with -o.") });
    const auto picture = taken(options, context);
    if (!picture)
        return context.report(picture.failure());
    const ExportFormat format = storedFormat(context.settings());
    QString path;
    const auto write = [&](const QByteArray &bytes) -> Outcome {
        const auto written = writeNew(folder, format, bytes, context);
        if (!written)
            return written.failure();
        path = *written;
        return Done {};
    };
    const ExitStatus status = context.report(writeCapture(*picture, format, write, context));
    return status == ExitStatus::Done ? context.print(QFile::encodeName(path) + '\n') : status;
}

ExitStatus tell(const CaptureOptions &options, const CaptureOutcome &outcome, CommandContext &context)
{
    if (const auto *failure = std::get_if<Failure>(&outcome))
        return context.report(*failure);
    if (std::holds_alternative<CaptureCancelled>(outcome))
        return context.report(Failure { Text::tr("The capture was cancelled.") });
    const QString path = std::get<Captured>(outcome).path;
    if (options.sink() != CaptureSink::File || options.output || path.isEmpty())
        return ExitStatus::Done;
    return context.print(QFile::encodeName(path) + '\n');
}

/// Asks the Tessaly that runs, or becomes one.
ExitStatus captureByProgram(const CaptureOptions &options, CommandContext &context)
{
    if (options.output) { // better told before the user has selected something
        auto targets = OutputTargets::create(*options.output, {});
        const auto path = targets ? targets->singlePath() : Result<QString>(targets.failure());
        if (!path)
            return context.report(path.failure());
    }
    const QString subject = rawValue(options.subject);
    const QVariantMap request = options.forProgram();
    context.requireEventLoop();
    const auto outcome = context.environment().askProgram(subject, request);
    return outcome ? tell(options, *outcome, context)
                   : DesktopProgram::becomeForCapture(subject, request, context.console());
}

ExitStatus runCapture(const CaptureOptions &options, CommandContext &context)
{
    if (const auto problem = options.usageProblem()) {
        context.console().message(*problem);
        return ExitStatus::WrongUsage;
    }
    if (!options.isSettled() || !options.staysHere())
        return captureByProgram(options, context);
    if (options.sink() == CaptureSink::Text)
        return captureText(options, context);
    return options.output ? context.report(captureFile(options, *options.output, context))
                          : captureNewFile(options, context);
}

template <CaptureSubject Subject>
CommandBody setUpSubject(CommandOptions &options)
{
    auto chosen = std::make_shared<CaptureOptions>();
    chosen->subject = Subject;
    chosen->declare(options);
    options.closing("The capture is also kept in the history (tessaly history --help), unless that is\n"
                    "switched off or only its text is asked for.");
    return [chosen](CommandContext &context) { return runCapture(*chosen, context); };
}

constexpr Command captureModes[] = {
    { "region", "An area that you select, or one that you name", setUpSubject<CaptureSubject::Region> },
    { "window", "A window that you pick, or one that you name", setUpSubject<CaptureSubject::Window> },
    { "front-window", "The window in front of all others", setUpSubject<CaptureSubject::FrontWindow> },
    { "full-screen", "The whole of one display, at its own pixels", setUpSubject<CaptureSubject::FullScreen> },
    { "last-region", "The area that was selected last", setUpSubject<CaptureSubject::LastRegion> },
};

} // namespace

CommandBody setUpCapture(CommandOptions &options)
{
    options.commands(captureModes);
    return {};
}

} // namespace tessaly
