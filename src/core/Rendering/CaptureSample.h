// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

#include <QColor>
#include <QRectF>
#include <QTransform>

#include <vector>

namespace tessaly {

/// The capture as everything that samples it may see it: with all fully hidden areas painted over, wherever their
/// marks stand in the list. Whatever is computed from it cannot tell what those areas hide.
class CaptureSample {
public:
    struct HiddenArea {
        QRectF area; ///< points
        QColor color; ///< opaque
    };

    CaptureSample() = default;
    /// `canvasSize` is the size in points that the picture's pixels are spread over.
    CaptureSample(const RasterImage &image, QSizeF canvasSize, std::vector<HiddenArea> hidden);

    bool isEmpty() const { return m_pixels.isNull(); }
    QRect pixelBounds() const { return m_pixels.rect(); }
    bool hasAlphaChannel() const { return m_pixels.hasAlphaChannel(); }
    double pixelsPerPoint() const { return m_toPixels.m11(); }

    /// The pixels of the capture that an area in points touches.
    QRect touchedPixels(const QRectF &points) const;
    /// The area in points of a rectangle of pixels.
    QRectF pointsOf(const QRect &pixels) const;

    /// A copy of a part. Null when the part is empty.
    QImage region(const QRect &pixels) const;

    /// Tells apart what region() gives: equal keys mean equal pixels.
    QByteArray key(const QRect &pixels) const;

private:
    std::vector<std::pair<QRect, QRgb>> hiddenIn(const QRect &pixels) const;

    QImage m_pixels;
    QTransform m_toPixels;
    std::vector<std::pair<QRect, QRgb>> m_hidden; ///< pixels
};

} // namespace tessaly
