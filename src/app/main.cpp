// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CommandLine.h"
#include "platform/Choice/PlatformChoice.h"

#include <csignal>

int main(int argc, char **argv)
{
    // A file that grows past the limit that the user set is then a failed write, with its sentence, and not the end.
    std::signal(SIGXFSZ, SIG_IGN);
    return tessaly::runCommandLine(argc, argv, { .screenSource = tessaly::PlatformChoice::screenSource });
}
