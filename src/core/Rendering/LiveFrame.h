// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/FrameBackground.h"
#include "core/Rendering/FrameShadow.h"
#include "core/Rendering/LiveGeometry.h"
#include "core/Rendering/PaintSteps.h"
#include "core/Rendering/ViewLayer.h"

#include <functional>

namespace tessaly {

/// What surrounds and covers the content of an open capture: background and shadow, or the checkerboard behind what is
/// transparent; the rounded corners; the watermark. All pixels are those of the view.
class LiveFrame {
public:
    /// Draws the whole content: the shadow of one that is not opaque follows its shape.
    using ContentSource = std::function<QImage()>;

    /// Brings everything up to date and returns the pixels on which something changed but for their place. A content
    /// that is not opaque throws a new shadow when its marks changed.
    QRegion update(const LiveScene &scene, const LiveView &view, const LiveGeometry &geometry, bool marksChanged,
        const ContentSource &content);

    /// Whether the content lies on something that is seen through or around it.
    bool hasBackground() const { return m_hasBackground; }

    /// Replaces `area` of the canvas by what the content lies on.
    void paintBackground(const QRect &area, QImage &picture) const;

    /// Lays a part of the content, whose top-left pixel comes to `position`, over it.
    void paintContent(const QRect &area, const QImage &content, QPoint position, QImage &picture) const;

    void paintWatermark(const QRect &area, QImage &picture) const;

private:
    void updateStyle(const ContentSource &content);
    void updateShadow(const FrameStyle &frame, const ContentSource &content);
    void updateWatermark();
    void fillLayer(const QRegion &region);
    void fillRows(const QRect &rows, QImage &layer) const;

    LiveGeometry m_geometry;
    QRect m_fitted; ///< pixels of the canvas
    std::optional<FrameStyle> m_frame;
    std::optional<Watermark> m_watermark;
    FrameBackground::Checkerboard m_checkerboard;
    bool m_isOpaque = true;
    bool m_hasBackground = false;
    std::optional<FrameBackground> m_background;
    std::optional<FrameShadow> m_shadow;
    double m_shadowOpacity = 0;
    QPoint m_shadowOrigin; ///< of the content's shadow, in pixels of the canvas
    CoverageMask m_corners; ///< of the content, in pixels of the canvas
    PreparedMark m_watermarkSteps; ///< fitted to the pixels of the canvas
    ViewLayer m_layer; ///< background and shadow of the visible part of the canvas
};

} // namespace tessaly
