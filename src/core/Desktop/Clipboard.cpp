// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Desktop/Clipboard.h"

namespace tessaly {

ClipboardOffer::~ClipboardOffer() = default;
Clipboard::~Clipboard() = default;

} // namespace tessaly
