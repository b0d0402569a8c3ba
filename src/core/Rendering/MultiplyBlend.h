// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QImage>
#include <QRectF>

namespace tessaly {

/// Multiplies the pixels of `area` (in pixels, with partial pixels at fractional edges) within `clip` by `color` at the
/// strength of its alpha. The image is Format_RGB32 or Format_ARGB32_Premultiplied, and must not be shared.
void multiply(QImage &image, const QRect &clip, const QRectF &area, const QColor &color);

} // namespace tessaly
