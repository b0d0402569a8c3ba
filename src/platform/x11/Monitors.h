// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/Display.h"

#include <QList>

#include <xcb/xcb.h>

namespace tessaly::Monitors {

/// The monitors as the server lists them, all of scale 1; empty when it does not tell.
QList<Display> list(xcb_connection_t *xcb, xcb_window_t root);

} // namespace tessaly::Monitors
