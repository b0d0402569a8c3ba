// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/CaptureFailureAlert.h"

#include "core/Capture/SystemScreenshotWatcher.h"
#include "core/Desktop/Alerts.h"

#include <QCoreApplication>

namespace tessaly::CaptureFailureAlert {

namespace {

QString message() { return QCoreApplication::translate("CaptureService", "Couldn't capture the screen"); }

} // namespace

void show(const CaptureService::Surroundings &with, const Failure &failure)
{
    with.alerts.warn(message(), failure.message);
}

void showWithWaysOut(const CaptureService::Surroundings &with, const Failure &failure)
{
    QStringList paragraphs;
    if (const auto wayOut = with.screen.wayOut())
        paragraphs += *wayOut;
    paragraphs += QCoreApplication::translate("CaptureService",
        "Can't grant the permission? Keep using the macOS shortcut ⇧⌘4 and Tessaly will open each "
        "screenshot in the editor, or paste a screenshot with ⇧⌘N.");
    paragraphs += QCoreApplication::translate("CaptureService", "Detail: %1").arg(failure.message);
    const int answer = with.alerts.ask({ .message = message(),
        .informativeText = paragraphs.join(QStringLiteral("\n\n")),
        .answers = { { QCoreApplication::translate("CaptureService", "Use System Screenshots…") },
            { QCoreApplication::translate("CaptureService", "Close") } },
        .escapeAnswer = 1 });
    if (answer == 0)
        with.watcher.enableChoosingFolder();
}

} // namespace tessaly::CaptureFailureAlert
