// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/CanvasAdornments.h"
#include "core/Editing/CanvasTransform.h"

#include <QColor>
#include <QRegion>
#include <QSizeF>

class QPainter;

namespace tessaly {

/// Caret and selection of a text that is being edited, in image points.
struct TextMarks {
    bool isEditing = false; ///< the outline then keeps off the letters
    QList<QRectF> selection;
    QList<QRectF> composed; ///< what an input method has not committed yet; underlined
    std::optional<QLineF> caret; ///< absent while it blinks

    bool operator==(const TextMarks &) const = default;
};

/// What a layer over the capture shows, in image points.
struct LayerMarks {
    QColor color;
    QList<QRectF> selection; ///< filled, so that what is below can be read
    std::optional<QRectF> framed;

    bool operator==(const LayerMarks &) const = default;
};

/// Everything that is painted over the capture while it is edited.
struct CanvasOverlay {
    CanvasAdornments adornments;
    TextMarks text;
    LayerMarks layer;
    CanvasTransform transform;
    QSizeF imageSize; ///< points
    double pixelScale = 1; ///< of the capture, for the size label of the crop

    bool operator==(const CanvasOverlay &) const = default;
};

/// Paints outlines, handles, guides, crop frame and caret so that they can be told from light and dark captures alike.
/// Everything is as large on screen at any zoom.
namespace CanvasPainter {

/// The view pixels that paint() may touch.
QRegion area(const CanvasOverlay &overlay, QSizeF view);

void paint(QPainter &painter, const CanvasOverlay &overlay, QSizeF view);

} // namespace CanvasPainter

} // namespace tessaly
