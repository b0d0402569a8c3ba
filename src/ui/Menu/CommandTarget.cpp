// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/CommandTarget.h"

namespace tessaly {

CommandTarget::~CommandTarget() = default;

} // namespace tessaly
