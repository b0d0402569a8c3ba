// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine/InterruptionGuard.h"

#include <atomic>

namespace tessaly {

namespace {

// A handler has no other way to tell what it saw.
std::atomic<int> notedSignal = 0;
static_assert(std::atomic<int>::is_always_lock_free);

void note(int signal) { notedSignal = signal; }

} // namespace

InterruptionGuard::InterruptionGuard()
{
    notedSignal = 0;
    struct sigaction noting = {};
    noting.sa_handler = note;
    noting.sa_flags = SA_RESTART;
    for (std::size_t index = 0; index < signals.size(); ++index) {
        ::sigaction(signals[index], nullptr, &m_before[index]);
        if (m_before[index].sa_handler != SIG_IGN)
            ::sigaction(signals[index], &noting, nullptr);
    }
}

InterruptionGuard::~InterruptionGuard()
{
    for (std::size_t index = 0; index < signals.size(); ++index)
        ::sigaction(signals[index], &m_before[index], nullptr);
    if (const int signal = notedSignal.exchange(0))
        std::raise(signal);
}

} // namespace tessaly
