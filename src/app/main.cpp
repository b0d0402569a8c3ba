// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CommandLine.h"
#include "platform/Choice/PlatformChoice.h"

#include <csignal>

int main(int argc, char **argv)
{
    using namespace tessaly;
    // A file that grows past the limit that the user set is then a failed write, with its sentence, and not the end.
    std::signal(SIGXFSZ, SIG_IGN);
    return runCommandLine(
        argc, argv, { .screenSource = [] { return PlatformChoice::screenSource(CaptureUse::Once); } });
}
