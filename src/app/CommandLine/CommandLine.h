// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/ScreenSource.h"
#include "core/Text/TextRecognizer.h"

#include <functional>
#include <memory>

namespace tessaly {

/// What the commands need from the desktop; asked for only by the commands that use it.
struct CommandEnvironment {
    std::function<Result<std::unique_ptr<ScreenSource>>()> screenSource;
    /// Called when there is an application object.
    std::function<std::unique_ptr<TextRecognizer>()> textRecognizer;
};

/// Runs one command. The exit status: 0 done, 1 the work failed, 2 wrong usage.
int runCommandLine(int argc, char **argv, const CommandEnvironment &environment);

} // namespace tessaly
