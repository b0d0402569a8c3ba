// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Screen/SelectionOverlay.h"

namespace tessaly {

SelectionOverlay::~SelectionOverlay() = default;

} // namespace tessaly
