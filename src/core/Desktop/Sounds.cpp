// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/Sounds.h"

namespace tessaly {

Sounds::~Sounds() = default;

} // namespace tessaly
