// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Frame/Watermark.h"
#include "core/Rendering/PaintSteps.h"

namespace tessaly {

/// What a watermark paints on a canvas of `canvasSize` points at `pixelsPerPoint`; nothing for one that cannot be seen.
/// Its numbers are in range.
///
/// `size` refers to the canvas's shorter side, so that a mark looks the same on an upright and on a wide picture: the
/// longer side of a logo is `size` times it, and a text's font size a fifth of that, never under 6 points, and made
/// smaller where the text would not fit between the insets. The inset is 4 % of the same side. The grid of a tiled mark
/// is at least 8 % of the longer side, so that a narrow strip is not filled with countless tiles. A text needs fonts.
PreparedMark prepareWatermark(const Watermark &watermark, QSizeF canvasSize, double pixelsPerPoint);

} // namespace tessaly
