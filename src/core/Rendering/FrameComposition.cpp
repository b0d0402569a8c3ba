// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/FrameComposition.h"

namespace tessaly {

QImage FrameComposition::rendered(double, int) const { return image.pixels; }

} // namespace tessaly
