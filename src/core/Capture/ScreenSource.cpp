// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/ScreenSource.h"

namespace tessaly {

ScreenSource::~ScreenSource() = default;

} // namespace tessaly
