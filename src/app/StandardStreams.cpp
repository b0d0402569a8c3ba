// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

namespace tessaly {

void StandardStreams::claim()
{
    // Opened the wrong way round, so that a result that nobody gets is not called done. Libraries may complain unheard.
    constexpr int modes[] { O_WRONLY, O_RDONLY, O_RDWR };
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) < 0)
            (void)::open("/dev/null", modes[stream]); // the lowest number that is free
    }
}

} // namespace tessaly
