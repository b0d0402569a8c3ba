// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"
#include "core/Rendering/LiveGeometry.h"
#include "core/Rendering/ViewLayer.h"

namespace tessaly {

/// The capture below its marks at the scale of a view: its own pixels where they fall on those of the view, else the
/// visible part scaled once.
class LiveBase {
public:
    void update(const RasterImage &image, const LiveGeometry &geometry, int threads);

    /// Copies `area`, in pixels of the view and within the visible content, into `target` at `position`.
    void copy(const QRect &area, QImage &target, QPoint position) const;

private:
    void scale(const QRegion &region, int threads);

    QImage m_capture;
    LiveGeometry m_geometry;
    ViewLayer m_scaled; ///< empty where the capture's own pixels are shown
};

} // namespace tessaly
