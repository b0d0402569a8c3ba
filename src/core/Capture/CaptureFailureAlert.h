// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureService.h"

namespace tessaly::CaptureFailureAlert {

/// Tells the user why there is no picture.
void show(const CaptureService::Surroundings &with, const Failure &failure);

/// The same for a screen that cannot be captured, with what can be done about it; waits for the answer.
void showWithWaysOut(const CaptureService::Surroundings &with, const Failure &failure);

} // namespace tessaly::CaptureFailureAlert
