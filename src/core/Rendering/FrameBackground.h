// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Frame/FrameStyle.h"

#include <QBrush>
#include <QImage>
#include <QSizeF>

namespace tessaly {

/// What a framed picture lies on.
class FrameBackground {
public:
    /// `checkerboard` shows a transparent background as the editor does.
    FrameBackground(const FrameStyle &frame, QSizeF canvasSize, bool checkerboard);

    /// Whether it leaves no pixel of the canvas transparent.
    bool isOpaque() const { return m_opaque; }

    /// Replaces the rows of a canvas of `scale` pixels per point.
    void paint(QImage &canvas, const QRect &rows, double scale) const;

private:
    QSizeF m_canvasSize;
    QBrush m_brush;
    bool m_checkerboard = false;
    bool m_opaque = true;
};

} // namespace tessaly
