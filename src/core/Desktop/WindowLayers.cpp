// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/WindowLayers.h"

namespace tessaly {

WindowLayers::~WindowLayers() = default;

} // namespace tessaly
