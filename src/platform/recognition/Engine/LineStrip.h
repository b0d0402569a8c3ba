// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/recognition/Engine/TextLines.h"

#include <QImage>
#include <QRectF>

namespace tessaly {

/// A line of text cut out for reading: dark on white, of the height that the models were trained on.
struct LineStrip {
    QImage pixels; ///< Format_Grayscale8
    double scale = 1; ///< strip pixels a pixel of the picture
    QPointF origin; ///< of the strip in pixels of the picture

    /// Where a stretch of the strip lies in the picture.
    QRectF inPicture(double left, double right) const
    {
        return QRectF(origin.x() + left / scale, origin.y(), (right - left) / scale, pixels.height() / scale);
    }
};

[[nodiscard]] LineStrip lineStrip(const QImage &ink, const TextLine &line);

} // namespace tessaly
