// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <memory>

namespace tessaly {

/// The signals by which the session asks the program to end. One at a time; there must be a QCoreApplication.
class EndSignals {
public:
    /// `asked` is called from the event loop; a second signal has its usual effect.
    explicit EndSignals(std::function<void()> asked);
    ~EndSignals();
    EndSignals(const EndSignals &) = delete;
    EndSignals &operator=(const EndSignals &) = delete;

private:
    int m_ends[2] { -1, -1 }; ///< of a pipe that the signal handler writes into
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace tessaly
