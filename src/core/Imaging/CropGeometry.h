// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRectF>
#include <QSize>

/// Arithmetic of the crop rectangle. Points, origin top-left, unless a name says pixels.
namespace tessaly::CropGeometry {

/// `rect` moved, never resized, until it lies inside `bounds`; an axis on which it is too long starts where `bounds`
/// starts.
[[nodiscard]] QRectF movedInside(QRectF rect, const QRectF &bounds);

/// A rectangle of that ratio (width to height) about the centre of `rect` and as large as it, as far as `bounds` allow:
/// going through several ratios makes it neither larger nor smaller.
[[nodiscard]] QRectF withRatio(const QRectF &rect, double ratio, const QRectF &bounds);

/// `rect` with its size and then its place rounded to whole pixels of a picture of that size, of which it keeps at
/// least one each way.
[[nodiscard]] QRectF onPixels(const QRectF &rect, double pixelScale, QSize pixels);

} // namespace tessaly::CropGeometry
