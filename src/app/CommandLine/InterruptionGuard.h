// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <csignal>

namespace tessaly {

/// Puts off the signals that end the program while it lives, so that a file being written is finished or removed.
/// Blocking them on this thread would not do: any of Qt's threads may be handed a signal. One at a time.
class InterruptionGuard {
public:
    InterruptionGuard();

    /// The signal that came meanwhile now has its effect.
    ~InterruptionGuard();
    InterruptionGuard(const InterruptionGuard &) = delete;
    InterruptionGuard &operator=(const InterruptionGuard &) = delete;

private:
    static constexpr std::array signals { SIGINT, SIGTERM, SIGHUP, SIGQUIT };
    std::array<struct sigaction, signals.size()> m_before {};
};

} // namespace tessaly
