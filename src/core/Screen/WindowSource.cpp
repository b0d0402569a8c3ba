// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Screen/WindowSource.h"

namespace tessaly {

WindowSource::~WindowSource() = default;

} // namespace tessaly
