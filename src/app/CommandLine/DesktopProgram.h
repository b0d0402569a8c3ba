// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QString>

/// The way from the command line to the windows: the program with the windows lies beside this one.
namespace tessaly::DesktopProgram {

/// Whether the arguments, which begin with no command, ask for a window: there are none, or the first is "--" or the
/// name of something that exists.
bool isMeant(int argc, char **argv);

/// Whether there is a display that windows can be shown on.
bool hasDisplay();

/// Becomes the desktop program with the same arguments. Only comes back with a failure.
Failure become(char **argv);

} // namespace tessaly::DesktopProgram
