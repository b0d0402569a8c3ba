// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <QTransform>

#include <optional>
#include <variant>
#include <vector>

class QPainter;

namespace tessaly {

/// What one mark comes down to when it is painted. All positions are image points; the painter's transformation
/// takes them to pixels.

/// A shape in one colour.
struct FillStep {
    QPainterPath outline; ///< with its own fill rule
    QColor color;
    std::optional<QRectF> clip = {}; ///< grown to whole pixels when painted
};

/// A picture stretched into a rectangle.
struct PictureStep {
    QImage picture;
    QRectF target;
    bool wholePixels = false; ///< the target grows to whole pixels, so that nothing shines through at its edge
    QTransform placement = {}; ///< applied to the target
    double opacity = 1;
};

/// The marker pen: what lies below is multiplied by the colour.
struct MultiplyStep {
    QRectF area;
    QColor color; ///< its alpha is the strength
};

/// Whole pixels covered by an opaque colour.
struct CoverStep {
    QRectF area;
    QColor color;
};

/// A picture seen through a shape.
struct LensStep {
    QPainterPath outline;
    QImage picture;
    QRectF target; ///< where the picture lies
};

using PaintStep = std::variant<FillStep, PictureStep, MultiplyStep, CoverStep, LensStep>;

/// A mark made ready: nothing is laid out, decoded or computed any more when it is painted.
struct PreparedMark {
    QRectF bounds; ///< of everything that it can touch, strokes included
    std::vector<PaintStep> steps;

    void fill(QPainterPath outline, const QColor &color);
    void add(PictureStep step);
    void add(MultiplyStep step);
    void add(CoverStep step);
    void add(LensStep step);

private:
    void touch(const QRectF &area) { bounds = bounds.isNull() ? area : bounds.united(area); }
};

/// Pixels with a painter on them. The painter's clip must be `clip`, a rectangle in pixels.
struct PaintTarget {
    QPainter &painter;
    QImage *pixels = nullptr; ///< what the painter paints on, when that is known to be a picture in memory
    QRect clip; ///< pixels
};

void paint(const PreparedMark &mark, const PaintTarget &target);

} // namespace tessaly
