// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace tessaly {

/// A countdown before a capture that menus and settings offer.
struct CaptureDelay {
    int seconds; ///< 0: none
    const char *title; ///< translated in the context "CaptureDelays"
};

inline constexpr CaptureDelay captureDelays[] = {
    { 0, QT_TRANSLATE_NOOP("CaptureDelays", "Off") },
    { 3, QT_TRANSLATE_NOOP("CaptureDelays", "3 seconds") },
    { 5, QT_TRANSLATE_NOOP("CaptureDelays", "5 seconds") },
    { 10, QT_TRANSLATE_NOOP("CaptureDelays", "10 seconds") },
};

} // namespace tessaly
