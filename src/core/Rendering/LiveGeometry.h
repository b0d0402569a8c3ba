// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Frame/FrameLayout.h"
#include "core/Rendering/LiveCanvas.h"

namespace tessaly {

/// Where an open capture lies in a window: pixels of the window unless they say otherwise.
struct LiveGeometry {
    FrameLayout layout;
    QSize viewSize;
    double scale = 1; ///< pixels per point, within what can be painted
    QRect canvas; ///< the whole framed canvas; may reach far out of the view
    QRect content; ///< the capture on it

    LiveGeometry() = default;
    LiveGeometry(const LiveScene &scene, const LiveView &view);

    QRect view() const { return QRect(QPoint(), viewSize); }
    QRect visibleCanvas() const { return canvas.intersected(view()); }
    QRect visibleContent() const { return content.intersected(view()); }

    /// The pixels of the content, from its own corner, that its marks are fitted to: all of them, as for exports,
    /// where they are about as many as the capture has; else what is visible and some more, so that scrolling a little
    /// does not change it.
    QRect fittedContent(QSize capturePixels) const;
    /// The same of the canvas, from its corner.
    QRect fittedCanvas(QSize capturePixels) const;

    /// Whether the other shows the same at another place.
    bool isMoved(const LiveGeometry &other) const;

    bool operator==(const LiveGeometry &) const = default;
};

} // namespace tessaly
