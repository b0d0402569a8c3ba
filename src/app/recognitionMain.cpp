// SPDX-License-Identifier: GPL-3.0-or-later
// Reads text and codes for the other programs, which start it with a connection as its standard input.
#include "core/Imaging/PixelMemory.h"
#include "platform/recognition/Engine/RecognitionServer.h"

#include <QCoreApplication>

#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>

int main(int argc, char **argv)
{
    tessaly::PixelMemory::shareHeap();
    const QCoreApplication application(argc, argv);
    struct stat status { };
    if (::fstat(STDIN_FILENO, &status) != 0 || !S_ISSOCK(status.st_mode)) {
        std::fputs("tessaly-recognition is started by Tessaly itself.\n", stderr);
        return 2;
    }
    // The connection ends with the program that started this one; the signal also reaches it while it computes.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    tessaly::RecognitionServer server(STDIN_FILENO);
    return server.run() ? 0 : 1;
}
