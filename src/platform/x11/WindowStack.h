// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/X11Connection.h"

#include <QRegion>

/// The windows directly below the root: frames that a window manager has put around programs' windows, and windows that
/// it leaves alone.
namespace tessaly::WindowStack {

struct TopLevel {
    xcb_window_t id = XCB_WINDOW_NONE;
    QRegion pixelRegion; ///< its shape with its border, on the root window
};

/// Those that can be seen where nothing lies above them, bottom first; without what a compositing manager draws on.
QList<TopLevel> visibleTopLevels(const X11Connection &connection);

/// For each window the top-level one that it is or lies in; XCB_WINDOW_NONE for one that is gone.
QList<xcb_window_t> topLevelsOf(const X11Connection &connection, const QList<xcb_window_t> &windows);

/// The root window's children, bottom first.
QList<xcb_window_t> children(const X11Connection &connection);

} // namespace tessaly::WindowStack
