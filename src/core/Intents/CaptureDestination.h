// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureRequest.h"

#include <QString>

#include <optional>
#include <span>

namespace tessaly {

/// Where another program may have a capture go.
enum class CaptureDestination { Editor, Clipboard, File };

struct CaptureDestinationRow {
    CaptureDestination destination;
    const char *rawValue; ///< as other programs name it
    const char *title; ///< English; translated in the context "Intents"
    CaptureSink sink;
};

std::span<const CaptureDestinationRow> captureDestinations();
std::optional<CaptureDestination> captureDestination(QStringView rawValue);

} // namespace tessaly
