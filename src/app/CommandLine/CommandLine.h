// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureRequest.h"
#include "core/Screen/WindowSource.h"
#include "core/Text/TextRecognizer.h"

#include <QVariantMap>

#include <functional>
#include <memory>

namespace tessaly {

/// What the commands need from the desktop; asked for only by the commands that use it.
struct CommandEnvironment {
    std::function<Result<std::unique_ptr<ScreenSource>>()> screenSource;
    /// Called when there is an application object.
    std::function<std::unique_ptr<TextRecognizer>()> textRecognizer;
    /// The same. Never null.
    std::function<std::unique_ptr<WindowSource>(ScreenSource &)> windowSource = {};
    /// The same. Asks the Tessaly that runs, with names and options as on the bus, and waits for the end of the
    /// capture; empty where none runs.
    std::function<std::optional<CaptureOutcome>(const QString &subject, const QVariantMap &options)> askProgram = {};
    /// The same. Lets the Tessaly that runs, where one does, leave alone a file that is about to appear in the folder
    /// that it watches.
    std::function<void(const QString &path)> announceFile = {};
};

/// Runs one command. The exit status: 0 done, 1 the work failed, 2 wrong usage.
int runCommandLine(int argc, char **argv, const CommandEnvironment &environment);

} // namespace tessaly
