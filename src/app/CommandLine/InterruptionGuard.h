// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>

namespace tessaly {

/// Holds back the signals that end the program while it lives, so that a file being written is finished or removed.
class InterruptionGuard {
public:
    InterruptionGuard();
    ~InterruptionGuard();
    InterruptionGuard(const InterruptionGuard &) = delete;
    InterruptionGuard &operator=(const InterruptionGuard &) = delete;

private:
    sigset_t m_before;
};

} // namespace tessaly
