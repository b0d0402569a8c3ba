// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Screen/ScreenSource.h"

namespace tessaly {

ScreenSource::~ScreenSource() = default;

} // namespace tessaly
