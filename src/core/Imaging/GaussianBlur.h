// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace tessaly::GaussianBlur {

/// What a blur sees beyond the borders of its picture.
enum class Outside {
    Edge, ///< the edge pixels going on for ever
    Nothing, ///< zero in every channel
};

/// How close to the Gaussian a blur is, at the hardest edges.
enum class Precision {
    Picture, ///< two levels
    Hiding, ///< seven levels, where nothing is to be seen anyway
};

/// The picture (4 bytes a pixel, or 1) softened by a Gaussian of standard deviation `pixelRadius`. A radius that is not
/// positive changes nothing. Null without the memory: the picture's own and, for small radii, twice as much beside it.
QImage blurred(const QImage &image, double pixelRadius, Outside outside, Precision precision, int threads);

} // namespace tessaly::GaussianBlur
