// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/Alerts.h"

namespace tessaly {

Alerts::~Alerts() = default;

} // namespace tessaly
