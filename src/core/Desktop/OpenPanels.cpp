// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/OpenPanels.h"

namespace tessaly {

OpenPanels::~OpenPanels() = default;

} // namespace tessaly
