// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/GaussianBlur.h"

namespace tessaly::BoxBlur {

/// The 16-bit samples (Format_RGBA64 or Format_Grayscale16) blurred along their columns by three boxes whose variances
/// add up to `variance`, in samples; close to a Gaussian. The result is transposed: blurred twice, a picture is itself
/// again, and both times memory is read along rows. Null without the memory.
QImage columnsBlurred(const QImage &samples, double variance, GaussianBlur::Outside outside, int threads);

} // namespace tessaly::BoxBlur
