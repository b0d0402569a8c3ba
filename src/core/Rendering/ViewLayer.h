// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRegion>

namespace tessaly {

/// Pixels kept for a rectangle of a view, which follow when the view is scrolled.
class ViewLayer {
public:
    /// Undefined pixels for `area`.
    void reset(const QRect &area, QImage::Format format);

    /// What is shown moved by `by`; from now on the layer is for `area`. Returns the part of it whose pixels are
    /// undefined.
    QRegion scroll(QPoint by, const QRect &area);

    QImage &image() { return m_image; }
    const QImage &image() const { return m_image; }
    const QRect &area() const { return m_area; }
    /// Where the image's top-left pixel lies in the view.
    QPoint origin() const { return m_area.topLeft(); }

private:
    QRect m_area;
    QImage m_image;
};

/// Copies pixels of 32 bits; `from` lies within the source and lands within the target.
void copyPixels(const QImage &source, const QRect &from, QImage &target, QPoint to);

} // namespace tessaly
