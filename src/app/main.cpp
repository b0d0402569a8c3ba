// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Bus/AutomationClient.h"
#include "app/CommandLine/CommandLine.h"
#include "app/StandardStreams.h"
#include "platform/Choice/PlatformChoice.h"
#include "platform/recognition/WorkerRecognizer.h"

#include <csignal>

int main(int argc, char **argv)
{
    using namespace tessaly;
    StandardStreams::claim();
    // A file that grows past the limit that the user set is then a failed write, with its sentence, and not the end.
    std::signal(SIGXFSZ, SIG_IGN);
    return runCommandLine(argc, argv,
        { .screenSource = [] { return PlatformChoice::screenSource(CaptureUse::Once); },
            .textRecognizer =
                [] {
                    return std::make_unique<WorkerRecognizer>(
                        WorkerRecognizer::Options { WorkerRecognizer::systemLanguages() });
                },
            .windowSource = PlatformChoice::windowSource,
            .askProgram = AutomationClient::capture,
            .announceFile = AutomationClient::ignoreFile });
}
