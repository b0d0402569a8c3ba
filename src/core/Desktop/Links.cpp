// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/Links.h"

namespace tessaly {

Links::~Links() = default;

} // namespace tessaly
