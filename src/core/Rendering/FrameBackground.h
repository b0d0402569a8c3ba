// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Frame/FrameStyle.h"

#include <QBrush>
#include <QSizeF>

class QPainter;

namespace tessaly {

/// What a framed picture lies on.
class FrameBackground {
public:
    /// `checkerboard` shows a transparent background as the editor does.
    FrameBackground(const FrameStyle &frame, QSizeF canvasSize, bool checkerboard);

    /// Whether it leaves no pixel of the canvas transparent.
    bool isOpaque() const { return m_opaque; }

    /// Fills the painter's clip; its units are points.
    void paint(QPainter &painter) const;

private:
    QSizeF m_canvasSize;
    QBrush m_brush;
    bool m_checkerboard = false;
    bool m_opaque = true;
};

} // namespace tessaly
