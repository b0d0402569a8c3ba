// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CommandLine.h"

namespace tessaly {

int runCommandLine(int, char **, const CommandEnvironment &) { return 2; }

} // namespace tessaly
