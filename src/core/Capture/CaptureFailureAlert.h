// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureService.h"

namespace tessaly::CaptureFailureAlert {

/// Tells the user why there is no picture and what can be done about it, and waits for the answer.
void show(const CaptureService::Surroundings &with, const Failure &failure);

} // namespace tessaly::CaptureFailureAlert
