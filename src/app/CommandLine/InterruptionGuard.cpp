// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/InterruptionGuard.h"

namespace tessaly {

InterruptionGuard::InterruptionGuard()
{
    sigset_t held;
    sigemptyset(&held);
    for (const int signal : { SIGINT, SIGTERM, SIGHUP, SIGQUIT })
        sigaddset(&held, signal);
    ::pthread_sigmask(SIG_BLOCK, &held, &m_before);
}

InterruptionGuard::~InterruptionGuard() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

} // namespace tessaly
