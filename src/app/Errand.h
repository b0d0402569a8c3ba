// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureRequest.h"

/// What a program that was started for one capture says about it where it was started.
namespace tessaly::Errand {

/// A sentence to standard error; the exit status.
int tell(const Failure &failure);

/// The same of an outcome. The path of a file that whoever asked has not named goes to standard output.
int tell(const CaptureOutcome &outcome, bool namesFile);

} // namespace tessaly::Errand
