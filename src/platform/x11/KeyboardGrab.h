// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTimer>

#include <xcb/xcb.h>

namespace tessaly {

/// All keys to one window, whichever has the focus. The server ends it with the window and with the connection.
class KeyboardGrab {
public:
    explicit KeyboardGrab(xcb_connection_t *xcb);

    /// Keys go to the window from now on; while another program holds the keyboard, as one with an open menu does, as
    /// soon as it lets go. The window must be mapped.
    void take(xcb_window_t window);
    void giveBack();

private:
    void attempt();

    xcb_connection_t *m_xcb;
    xcb_window_t m_window = XCB_WINDOW_NONE;
    QTimer m_retry;
};

} // namespace tessaly
