// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Imaging/RasterImage.h"

#include <optional>

/// What marks hide of a capture, for whatever reads the capture itself.
namespace tessaly::HiddenParts {

/// The boxes, in image points, of all marks that cover what is below: obscured areas of any style, filled shapes,
/// pictures and stickers.
QList<QRectF> areas(const QList<Annotation> &marks);

/// The capture with those marks painted into it and no others; itself where there are none. Empty when there is no
/// memory for it. Any thread.
std::optional<RasterImage> painted(const RasterImage &capture, const QList<Annotation> &marks, int threads = 0);

} // namespace tessaly::HiddenParts
