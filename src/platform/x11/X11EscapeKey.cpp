// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11EscapeKey.h"

#include "platform/x11/KeyboardMap.h"

#include <QCoreApplication>

#include <array>

namespace tessaly {

X11EscapeKey::X11EscapeKey(xcb_connection_t *xcb, xcb_window_t root) : m_xcb(xcb), m_root(root) { }
X11EscapeKey::~X11EscapeKey() { letGo(); }

void X11EscapeKey::watch(std::function<void()> pressed)
{
    letGo();
    m_pressed = std::move(pressed);
    if (m_pressed)
        grab();
}

/// With Caps Lock and Num Lock or without. A refused grab leaves those that were granted.
void X11EscapeKey::grab()
{
    const KeyboardMap keyboard(m_xcb);
    m_grabbed = keyboard.keysOf(KeyboardMap::escape);
    const uint16_t numLock = keyboard.modifierOf({ KeyboardMap::numLock });
    const std::array<uint16_t, 4> locks { 0, XCB_MOD_MASK_LOCK, numLock, uint16_t(numLock | XCB_MOD_MASK_LOCK) };
    QList<xcb_void_cookie_t> requests;
    for (const xcb_keycode_t key : m_grabbed)
        for (const uint16_t lock : locks)
            requests += xcb_grab_key_checked(m_xcb, 1, m_root, lock, key, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
    for (const xcb_void_cookie_t request : requests)
        std::free(xcb_request_check(m_xcb, request));
    QCoreApplication::instance()->installNativeEventFilter(this);
}

void X11EscapeKey::letGo()
{
    if (!m_pressed)
        return;
    QCoreApplication::instance()->removeNativeEventFilter(this);
    for (const xcb_keycode_t key : std::exchange(m_grabbed, {}))
        xcb_ungrab_key(m_xcb, key, m_root, XCB_MOD_MASK_ANY);
    xcb_flush(m_xcb);
    m_pressed = nullptr;
}

bool X11EscapeKey::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    if ((event->response_type & 0x7f) != XCB_KEY_PRESS)
        return false;
    const auto *press = static_cast<const xcb_key_press_event_t *>(message);
    if (press->event != m_root || !m_grabbed.contains(press->detail))
        return false;
    const auto pressed = m_pressed; // it may end the watching
    pressed();
    return true;
}

} // namespace tessaly
