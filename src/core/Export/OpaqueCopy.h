// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Imaging/RasterImage.h"

namespace tessaly {

/// The picture on white, for formats and receivers without transparency. A picture without an alpha channel comes back
/// as it is, and so does one that there is no memory to copy.
RasterImage opaque(const RasterImage &image);

} // namespace tessaly
