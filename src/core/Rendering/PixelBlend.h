// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/CoverageMask.h"

#include <QColor>
#include <QImage>
#include <QRectF>

/// Painting straight into pixels of Format_RGB32 or Format_ARGB32_Premultiplied. No row outside `clip` is touched, so
/// that threads may share a picture by rows. The image must not be shared with another QImage that counts on it. Masks,
/// areas, positions and clips are pixels of a grid on which the image's top-left pixel lies at `origin`.
namespace tessaly::PixelBlend {

/// Multiplies the pixels of `area` (in pixels, with partial pixels at fractional edges) by `color` at the strength of
/// its alpha.
void multiply(QImage &image, const QRect &clip, const QRectF &area, const QColor &color, QPoint origin = {});

/// Lays a colour over the covered pixels.
void fill(QImage &image, const QRect &clip, const CoverageMask &mask, const QColor &color, QPoint origin = {});

/// Whether a picture is laid over what is there, or stands instead of it also where it is transparent.
enum class Mode { Over, Instead };

/// Paints the covered pixels of a picture whose top-left comes to `position`.
void fill(QImage &image, const QRect &clip, const CoverageMask &mask, const QImage &picture, QPoint position, Mode mode,
    QPoint origin = {});

/// Lays a whole picture over the pixels at `position`.
void draw(QImage &image, const QRect &clip, const QImage &picture, QPoint position, QPoint origin = {});

} // namespace tessaly::PixelBlend
