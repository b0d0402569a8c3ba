// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/Sharing.h"

namespace tessaly {

Sharing::~Sharing() = default;

} // namespace tessaly
