// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CommandLine.h"
#include "platform/Choice/PlatformChoice.h"

int main(int argc, char **argv)
{
    return tessaly::runCommandLine(argc, argv, { .screenSource = tessaly::PlatformChoice::screenSource });
}
