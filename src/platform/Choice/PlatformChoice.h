// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/ScreenSource.h"

#include <memory>

/// The one place that decides which of the desktop's services are used.
namespace tessaly::PlatformChoice {

/// The source for this desktop. TESSALY_PLATFORM=x11 or none forces a choice; where nothing can be captured the failure
/// says what is missing.
Result<std::unique_ptr<ScreenSource>> screenSource(CaptureUse use);

} // namespace tessaly::PlatformChoice
