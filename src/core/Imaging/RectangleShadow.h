// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace tessaly::RectangleShadow {

/// The coverage (Format_Grayscale8) of a rectangle blurred by a Gaussian of standard deviation `pixelRadius`, exact to
/// the rounding of a level: the product of what its two sides cover. A radius that is not positive, or no number,
/// gives the sharp rectangle with partly covered edge pixels. Null when the size is empty. Memory is its limit, so one
/// thread does it.
QImage coverage(QSize pixelSize, const QRectF &pixelRect, double pixelRadius);

} // namespace tessaly::RectangleShadow
