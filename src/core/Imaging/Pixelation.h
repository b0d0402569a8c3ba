// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/ImageEffects.h"

namespace tessaly::Pixelation {

/// The region (Format_RGB32 or Format_ARGB32_Premultiplied) in cells of `cellSide` pixels, at least 6, with noise over
/// them. The result is opaque, in Format_RGB32: where the region lets through, the noise is seen alone.
QImage pixelated(const QImage &region, double cellSide, ImageEffects::NoiseSeed seed, int threads);

} // namespace tessaly::Pixelation
