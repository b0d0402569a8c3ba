// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/KeyboardGrab.h"

#include "platform/x11/X11Reply.h"

namespace tessaly {

KeyboardGrab::KeyboardGrab(xcb_connection_t *xcb) : m_xcb(xcb)
{
    constexpr int retryEvery = 15; // ms
    m_retry.setInterval(retryEvery);
    m_retry.callOnTimeout([this] { attempt(); });
}

void KeyboardGrab::take(xcb_window_t window)
{
    m_window = window;
    attempt();
}

void KeyboardGrab::attempt()
{
    // The current time: the one of the last event that came here may lie before another program's grab, and then the
    // server refuses for good.
    const auto request
        = xcb_grab_keyboard(m_xcb, 1, m_window, XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    const XcbReply<xcb_grab_keyboard_reply_t> reply(xcb_grab_keyboard_reply(m_xcb, request, nullptr));
    if (reply && reply->status == XCB_GRAB_STATUS_SUCCESS)
        m_retry.stop();
    else if (!m_retry.isActive())
        m_retry.start();
}

void KeyboardGrab::giveBack()
{
    m_retry.stop();
    if (m_window == XCB_WINDOW_NONE)
        return;
    m_window = XCB_WINDOW_NONE;
    xcb_ungrab_keyboard(m_xcb, XCB_CURRENT_TIME);
    xcb_flush(m_xcb);
}

} // namespace tessaly
