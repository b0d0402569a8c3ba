// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/AnnotationsCanvas.h"

namespace tessaly::test {

/// A canvas with these marks over a capture, with the same noise on every run.
inline AnnotationsCanvas canvasOf(const RasterImage &capture, const QList<Annotation> &marks)
{
    AnnotationsCanvas canvas;
    canvas.annotations = marks;
    canvas.imageSize = capture.pointSize;
    canvas.source = capture;
    canvas.noiseSeed = { 42 };
    return canvas;
}

/// The capture with the marks burnt in, at `scale` pixels per point.
inline QImage drawn(const RasterImage &capture, const QList<Annotation> &marks, double scale = 1, int threads = 2)
{
    return canvasOf(capture, marks).drawnOver(capture, (capture.pointSize * scale).toSize(), scale, threads);
}

inline RasterImage plainCapture(QSize points, const QColor &color = Qt::white, int scale = 1)
{
    QImage pixels(points * scale, QImage::Format_RGB32);
    pixels.fill(color);
    return { pixels, points };
}

/// A capture in which no two neighbouring pixels are alike; another `seed` gives other pixels.
inline RasterImage noisyCapture(QSize pixels, double scale = 1, quint32 seed = 1)
{
    QImage image(pixels, QImage::Format_RGB32);
    quint32 value = seed * 2654435761u;
    for (int y = 0; y < pixels.height(); ++y) {
        for (int x = 0; x < pixels.width(); ++x) {
            value = value * 1664525u + 1013904223u;
            image.setPixel(x, y, 0xff000000u | value >> 8);
        }
    }
    return { image, QSizeF(pixels) / scale };
}

} // namespace tessaly::test
