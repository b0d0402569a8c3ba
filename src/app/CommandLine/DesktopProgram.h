// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CommandLine/Command.h"

#include <QVariantMap>

/// The way from the command line to the windows: the program with the windows lies beside this one.
namespace tessaly {
class Console;
}

namespace tessaly::DesktopProgram {

/// Whether the arguments, which begin with no command, ask for a window: there are none, or the first is "--",
/// "--resident", "--action" or the name of something that exists.
bool isMeant(int argc, char **argv);

/// Becomes the desktop program with the same arguments, which begin with the program's name. Only comes back when
/// there is no display or no such program, which the console then has told.
ExitStatus become(char **argv, Console &console);

/// The same for one capture, with names and options as on the bus.
ExitStatus becomeForCapture(const QString &subject, const QVariantMap &options, Console &console);

} // namespace tessaly::DesktopProgram
