// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/LoginItem.h"

namespace tessaly {

LoginItem::~LoginItem() = default;

} // namespace tessaly
