// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"
#include "ui/QuickAccess/QuickAccessPanel.h"

#include <QPointer>
#include <QScreen>
#include <QTimer>

#include <chrono>

namespace tessaly {

/// A thumbnail that is shown.
struct QuickAccessItem {
    RasterImage image;
    QPointer<QScreen> screen; ///< null once that has been unplugged
    QuickAccessPanel *panel = nullptr; ///< deletes itself after it has faded
    QTimer dismissWork; ///< stands still while the pointer is over it, and while a capture hides it
    std::chrono::milliseconds timeLeft {}; ///< while a capture hides it
    bool isHovered = false;
};

} // namespace tessaly
