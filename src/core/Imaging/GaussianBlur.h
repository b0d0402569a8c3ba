// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace tessaly::GaussianBlur {

/// What a blur sees beyond the borders of its picture.
enum class Outside {
    Edge, ///< the edge pixels going on for ever
    Nothing, ///< zero in every channel
};

/// The picture (4 bytes a pixel, or 1) softened by a Gaussian of standard deviation `pixelRadius`, within about one
/// level. A radius that is not positive changes nothing. Null without the memory: about the picture's size again for
/// radii from 6 pixels, four times that below.
QImage blurred(const QImage &image, double pixelRadius, Outside outside, int threads);

} // namespace tessaly::GaussianBlur
