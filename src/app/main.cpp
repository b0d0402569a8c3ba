// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/CommandLine.h"
#include "platform/Choice/PlatformChoice.h"

int main(int argc, char **argv)
{
    using namespace tessaly;
    return runCommandLine(
        argc, argv, { .screenSource = [] { return PlatformChoice::screenSource(CaptureUse::Once); } });
}
