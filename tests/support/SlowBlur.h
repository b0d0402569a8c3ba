// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace tessaly::test {

/// The Gaussian of standard deviation `radius`, summed pixel by pixel; 8 bits a channel. Outside the picture its edge
/// goes on, or there is nothing.
QImage slowBlur(const QImage &image, double radius, bool edgeGoesOn);

/// Between two pictures of the same size and format, over all their bytes.
int largestDifference(const QImage &one, const QImage &other);

} // namespace tessaly::test
