// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/Toasts.h"

namespace tessaly {

Toasts::~Toasts() = default;

} // namespace tessaly
