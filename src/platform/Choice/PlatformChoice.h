// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/WindowSource.h"

#include <memory>

/// The one place that decides which of the desktop's services are used.
namespace tessaly::PlatformChoice {

enum class Platform { X11, Wayland, Portal };

/// The platform of this session, by its environment alone, or the sentence that says what is missing.
/// TESSALY_PLATFORM=x11, wayland, portal or none forces a choice.
Result<Platform> platform();
/// Whether that variable is set.
bool isForced();

/// The source for this desktop; where nothing can be captured the failure says what is missing. On a compositor that
/// gives no pixels it is the portal, unless Wayland is forced.
Result<std::unique_ptr<ScreenSource>> screenSource(CaptureUse use);

/// Never null; one that cannot list where the desktop does not tell. `screen` outlives it.
std::unique_ptr<WindowSource> windowSource(ScreenSource &screen);

/// A source whose every answer is the failure, for a program that goes on without.
std::unique_ptr<ScreenSource> missingScreenSource(Failure failure);

} // namespace tessaly::PlatformChoice
