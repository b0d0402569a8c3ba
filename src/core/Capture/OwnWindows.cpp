// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/OwnWindows.h"

namespace tessaly {

OwnWindows::~OwnWindows() = default;

} // namespace tessaly
