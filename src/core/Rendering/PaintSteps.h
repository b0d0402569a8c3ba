// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/CoverageMask.h"
#include "core/Rendering/PixelGrid.h"

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

/// What one mark comes down to when it is painted. All positions are image points. What `fitted…` holds is the same
/// for the pixels of the grid that the mark was prepared for.

/// A shape in one colour.
struct FillStep {
    QPainterPath outline; ///< with its own fill rule
    QColor color;
    std::optional<QRectF> clip = {}; ///< grown to whole pixels when painted
    CoverageMask fittedMask = {};
};

/// A picture stretched into a rectangle.
struct PictureStep {
    QImage picture; ///< Format_RGB32 or Format_ARGB32_Premultiplied
    QRectF target;
    bool wholePixels = false; ///< the target grows to whole pixels, so that nothing shines through at its edge
    QTransform placement = {}; ///< applied to the target
    double opacity = 1;
    QImage fittedPicture = {};
    QPoint fittedPosition = {};
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

/// A picture of the grid's own pixels, seen through a shape.
struct LensStep {
    QPainterPath outline;
    QImage picture;
    QPoint pixelPosition; ///< of the picture on the grid
    CoverageMask fittedMask = {};
};

using PaintStep = std::variant<FillStep, PictureStep, MultiplyStep, CoverStep, LensStep>;

/// A mark made ready: nothing is laid out, decoded or computed any more when it is painted on its grid.
struct PreparedMark {
    QRectF bounds; ///< points; of everything that it can touch, strokes included
    std::vector<PaintStep> steps;

    void fill(QPainterPath outline, const QColor &color);
    void add(PictureStep step);
    void add(MultiplyStep step);
    void add(CoverStep step);
    void add(LensStep step);

    /// Computes the `fitted…` of pictures for the part of the grid within `pixels`; they are left to be scaled while
    /// painting once `budget`, a number of pixels, is spent.
    void fitPictures(const PixelGrid &grid, const QRect &pixels, qint64 &budget);
    /// The same of all shapes.
    void fitShapes(const PixelGrid &grid, const QRect &pixels);

private:
    void touch(const QRectF &area) { bounds = bounds.isNull() ? area : bounds.united(area); }
};

/// Where a mark is painted in memory.
struct PixelTarget {
    QImage &pixels; ///< Format_RGB32 or Format_ARGB32_Premultiplied
    QRect clip; ///< no other pixel is touched
    PixelGrid grid;
    bool fitted = true; ///< the grid is the one that the marks were fitted to
    QPoint origin = {}; ///< where the top-left pixel lies on the grid, in whose pixels the clip is given, too
};

void paint(const PreparedMark &mark, const PixelTarget &target);

/// The same with any painter, whose units are image points; for the screen.
void paint(const PreparedMark &mark, QPainter &painter);

} // namespace tessaly
