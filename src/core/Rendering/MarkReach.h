// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/PaintSteps.h"

#include <QRegion>

namespace tessaly {

/// The pixels of its grid, within `pixels`, that a mark fitted to that grid can touch: of a large hollow shape little
/// more than its outline.
QRegion reachOf(const PreparedMark &mark, const PixelGrid &grid, const QRect &pixels);

} // namespace tessaly
