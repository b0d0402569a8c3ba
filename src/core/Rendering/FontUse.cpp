// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/FontUse.h"

namespace tessaly {

bool needsFonts(const QList<Annotation> &, const std::optional<Watermark> &) { return true; }

} // namespace tessaly
