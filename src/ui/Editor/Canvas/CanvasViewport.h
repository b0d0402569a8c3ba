// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/CanvasTransform.h"
#include "core/Frame/FrameLayout.h"

#include <QSize>

namespace tessaly {

/// Which part of the framed canvas a view shows: scroll position and scale.
///
/// The canvas's corner always lies on a whole device pixel. A canvas smaller than the view is centred; a larger one can
/// be scrolled a little beyond its edges, so that what lies there can be worked on with room around it.
class CanvasViewport {
public:
    /// One axis as a scroll bar shows it, in device pixels.
    struct Range {
        int value = 0, maximum = 0, page = 0;
        bool isNeeded() const { return maximum > 0; }
        bool operator==(const Range &) const = default;
    };

    /// `size` is the view's in logical pixels; `offset` is its corner within the window, whose device pixels need not
    /// be whole where the ratio is not.
    void setView(QSizeF size, double devicePixelRatio, QPointF offset);
    /// The picture stays where it is when the frame around it changes.
    void setLayout(const FrameLayout &layout);
    /// View pixels per image point; the image point at the view position `fixed` stays there where scrolling allows.
    void setScale(double scale, QPointF fixed);
    /// View pixels that the canvas moves by. False when it could not.
    bool scrollBy(QPointF delta);
    /// Scrolls as little as shows the rectangle, in image points, with some room around it.
    void reveal(const QRectF &imageRect);
    void setScrollValue(Qt::Orientation orientation, int value);

    double scale() const { return m_scale; }
    double devicePixelRatio() const { return m_ratio; }
    QSizeF size() const { return m_size; }
    QPointF center() const { return { m_size.width() / 2, m_size.height() / 2 }; }
    const FrameLayout &layout() const { return m_layout; }
    double pixelsPerPoint() const { return m_scale * m_ratio; }
    /// Of the picture that covers the view; its first pixel lies at phase().
    QSize pixelSize() const;
    /// Where the canvas's corner lies in that picture.
    QPoint pixelOrigin() const;
    /// View pixels, above -1 device pixel and at most 0.
    QPointF phase() const { return m_phase; }
    CanvasTransform transform() const;
    Range range(Qt::Orientation orientation) const;

private:
    struct Bounds {
        double lowest, highest; ///< of the canvas's corner, device pixels
    };
    Bounds bounds(double view, double canvas) const;
    void clamp();

    QSizeF m_size { 1, 1 };
    QPointF m_phase;
    double m_ratio = 1;
    double m_scale = 1;
    FrameLayout m_layout;
    QPointF m_origin; ///< of the canvas in device pixels from the picture's corner; rounded when read
};

} // namespace tessaly
