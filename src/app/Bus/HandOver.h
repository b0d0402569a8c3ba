// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

namespace tessaly {

struct DesktopArguments;

/// A second start leaves what it was asked for to the Tessaly that runs already. Nothing here needs an application
/// object, a display or another thread.
namespace HandOver {

/// Whether there is one on the session bus.
bool isOtherRunning();

enum class Answer {
    Taken, ///< it does all that was asked for
    NoneRuns,
    Silent, ///< it has the name on the bus, but does not answer
};

/// Asks it for all that the arguments want but a capture, whose outcome somebody waits for. Unless that is taken this
/// start has to do it. What one that was just ending did not take is offered once more, to whichever runs then.
Answer toOther(const DesktopArguments &arguments, std::chrono::milliseconds patience = std::chrono::seconds(10));

} // namespace HandOver

} // namespace tessaly
