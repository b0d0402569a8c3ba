// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Imaging/RasterImage.h"

#include <QList>
#include <QRect>

namespace tessaly {

/// One monitor of the desktop.
struct Display {
    QString name;
    QRect pixelRect; ///< on the whole desktop, in device pixels
    double scale = 1; ///< pixels per point
    bool primary = false;
};

/// Whether a source is asked once, as by a command that then ends, or again and again by a program that stays.
enum class CaptureUse { Once, Repeated };

/// Where the pixels of the screen come from.
class ScreenSource {
public:
    virtual ~ScreenSource();

    /// The monitors, the primary one first.
    virtual Result<QList<Display>> displays() = 0;

    /// What the rectangle of the desktop (device pixels) shows now, without the pointer; opaque. The picture's points
    /// are the pixels divided by `scale`.
    virtual Result<RasterImage> capture(const QRect &pixelRect, double scale) = 0;
};

} // namespace tessaly
