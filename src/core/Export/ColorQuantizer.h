// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QImage>

namespace tessaly {

/// The picture in at most 256 colours, transparency included, chosen to be seen least. It is dithered only where the
/// colours do not suffice by far: in interfaces and text, noise is worse than a shade that is slightly off.
///
/// `image` is Format_RGB32, or Format_ARGB32 whose pixels are opaque or all 0; the result is of the same format.
Result<QImage> reducedColors(const QImage &image);

} // namespace tessaly
