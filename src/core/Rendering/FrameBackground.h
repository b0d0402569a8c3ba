// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Frame/FrameStyle.h"

#include <QBrush>
#include <QImage>
#include <QSizeF>

#include <optional>

namespace tessaly {

/// What a framed picture lies on.
class FrameBackground {
public:
    struct Checkerboard {
        QColor light { 255, 255, 255 }, dark { 226, 226, 230 };

        bool operator==(const Checkerboard &) const = default;
    };

    /// With a checkerboard, a transparent background is shown as the editor does. Without a frame it is transparent.
    FrameBackground(
        const std::optional<FrameStyle> &frame, QSizeF canvasSize, const std::optional<Checkerboard> &checkerboard);

    /// Whether it leaves no pixel of the canvas transparent.
    bool isOpaque() const { return m_opaque; }

    bool isGradient() const { return m_brush.gradient() != nullptr; }

    /// Replaces the pixels of `area` of a canvas of `scale` pixels per point; the image's top-left pixel lies at
    /// `origin` of the canvas, in whose pixels the area is given. Only whole rows always have the same bytes.
    void paint(QImage &image, const QRect &area, double scale, QPoint origin = {}) const;

private:
    QSizeF m_canvasSize;
    QBrush m_brush;
    std::optional<Checkerboard> m_checkerboard;
    bool m_opaque = true;
};

} // namespace tessaly
