// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Bus/AutomationClient.h"
#include "app/Bus/DesktopArguments.h"
#include "app/Bus/HandOver.h"
#include "app/EarlyReading.h"
#include "app/Errand.h"
#include "app/StandardStreams.h"
#include "app/TessalyApp.h"
#include "core/Imaging/PixelMemory.h"
#include "platform/Choice/Desktop/DesktopChoice.h"

#include <QApplication>

#include <csignal>
#include <unistd.h>

namespace {

using namespace tessaly;

/// Leaves the capture to the Tessaly that runs, and waits for its outcome; the exit status.
int captureByOther(const DesktopArguments::Capture &capture, int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (const auto outcome = AutomationClient::capture(capture.subject, capture.options))
        return Errand::tell(*outcome, capture.options.contains(QStringLiteral("output")));
    // It has ended meanwhile. This process has spoken with the bus as a program without windows: begin anew.
    ::execv("/proc/self/exe", argv);
    return Errand::tell(Failure { QStringLiteral("The program could not be started again.") });
}

/// The exit status, where a Tessaly that runs already takes all that this one was started for.
std::optional<int> leftToOther(DesktopArguments &arguments, int argc, char **argv)
{
    if (arguments.capture)
        return HandOver::isOtherRunning() ? std::optional(captureByOther(*arguments.capture, argc, argv))
                                          : std::nullopt;
    const HandOver::Answer answer = HandOver::toOther(arguments);
    arguments.besideOther = answer == HandOver::Answer::Silent;
    return answer == HandOver::Answer::Taken ? std::optional(0) : std::nullopt;
}

} // namespace

int main(int argc, char **argv)
{
    StandardStreams::claim();
    PixelMemory::shareHeap();
    // A file that grows past the limit that the user set is then a failed write, with its alert, and not the end.
    std::signal(SIGXFSZ, SIG_IGN);
    QStringList texts;
    for (int i = 1; i < argc; ++i)
        texts += QString::fromLocal8Bit(argv[i]);
    auto arguments = DesktopArguments::from(texts);
    if (const auto status = leftToOther(arguments, argc, argv))
        return *status;
    EarlyReading first(arguments.files.value(0));
    QCoreApplication::setApplicationName(QStringLiteral("tessaly"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Tessaly"));
    QGuiApplication::setDesktopFileName(QStringLiteral("org.tessaly.Tessaly"));
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    DesktopChoice::prepareEnvironment();
    QApplication application(argc, argv);
    TessalyApp app(arguments);
    return app.run(first);
}
