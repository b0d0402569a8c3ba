// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureService.h"

/// The last steps of a capture that succeeded.
namespace tessaly::CaptureDelivery {

/// Takes the picture to the request's sink. `sourceName` is of the program that was captured from; may be empty. What
/// failed has been told to the user, and the picture lies in the history all the same.
CaptureOutcome deliver(const CaptureService::Surroundings &with, const CaptureRequest &request,
    const RasterImage &image, const QString &sourceName);

} // namespace tessaly::CaptureDelivery
