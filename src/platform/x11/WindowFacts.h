// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/X11Connection.h"

#include <QMargins>

namespace tessaly {

/// What the server and the window manager tell of a program's window.
struct WindowFacts {
    xcb_window_t id = XCB_WINDOW_NONE;
    QRect pixelRect; ///< with its frame and without the shadow that the program draws itself; on the root window
    bool visible = false; ///< on the screen where nothing lies above it: not minimised, on the current workspace
    bool usual = false; ///< no panel, desktop, menu, tooltip or the like
    qint64 processId = 0;
    QString title;
    QString instance; ///< of WM_CLASS
    QString className;

    /// In the same order; without those that are gone.
    static QList<WindowFacts> of(const X11Connection &connection, const QList<xcb_window_t> &windows);
};

} // namespace tessaly
