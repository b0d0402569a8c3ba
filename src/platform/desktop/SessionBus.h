// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The desktop's message bus.
namespace tessaly::SessionBus {

/// Whether one is running. Without an address Qt would start a bus of its own, so ask before it is used.
bool isThere();

} // namespace tessaly::SessionBus
