// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/AnnotationsCanvas.h"

namespace tessaly {

void AnnotationsCanvas::draw(QPainter &) const { }

} // namespace tessaly
