// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPainterPath>

namespace tessaly {

/// The soft shadow of a picture with rounded corners. All lengths are pixels of the canvas.
class FrameShadow {
public:
    /// `shape` is the outline of the picture's corners about its own top-left; where `content` is transparent it
    /// throws no shadow. `radius` is the standard deviation of the blur. None at all for a radius of 0.
    FrameShadow(const QImage &content, const QPainterPath &shape, double cornerRadius, double radius);
    /// The same of an opaque picture of `size`.
    FrameShadow(QSize size, const QPainterPath &shape, double cornerRadius, double radius);

    /// Makes the shadow this many times as large: a very soft one needs no more detail.
    void magnify(int times) { m_magnification = times; }

    /// Darkens an area of `target` under the shadow of a picture whose top-left lies at `origin`.
    void blend(QImage &target, const QRect &area, QPoint origin, double opacity) const;

private:
    int sourceColumn(int x) const;
    int sourceRow(int y) const;

    QImage m_coverage; ///< 8 bits; one column and one row stand for all that look like them
    QSize m_size; ///< with those put back
    QPoint m_middle; ///< the column and row that are repeated
    int m_magnification = 1;
    int m_spread = 0; ///< how far the shadow reaches beyond the picture
};

} // namespace tessaly
