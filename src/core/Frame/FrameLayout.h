// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Frame/FrameStyle.h"

#include <QPointF>
#include <QSizeF>

#include <optional>

namespace tessaly {

/// Where a picture lies on its framed canvas, in points.
struct FrameLayout {
    QSizeF canvasSize; ///< of the whole framed output
    QPointF imageOrigin; ///< top-left corner of the picture on the canvas
    QSizeF imageSize;

    FrameLayout() = default;

    /// The canvas is the picture with the frame's margin, grown to its ratio and cut to whole pixels. Without a frame,
    /// or for a picture without area, it is the picture alone. A margin out of range is brought into it, so that the
    /// canvas of a finite picture is finite.
    FrameLayout(QSizeF imageSize, const std::optional<FrameStyle> &frame, double pixelScale);

    struct Shadow {
        double radius = 0; ///< points
        double yOffset = 0; ///< points, downwards
        double opacity = 0; ///< of black
    };
    /// The shadow that the picture throws; its size follows the smaller margin.
    static Shadow shadowMetrics(const FrameStyle &frame, const FrameLayout &layout);

    bool operator==(const FrameLayout &) const = default;
};

} // namespace tessaly
