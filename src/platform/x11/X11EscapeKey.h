// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QAbstractNativeEventFilter>
#include <QList>

#include <functional>
#include <xcb/xcb.h>

namespace tessaly {

/// The Escape key, whichever window has the focus; all other keys go where they would. There must be a QGuiApplication
/// on that server.
class X11EscapeKey final : public QAbstractNativeEventFilter {
public:
    X11EscapeKey(xcb_connection_t *xcb, xcb_window_t root);
    ~X11EscapeKey() override;

    /// `pressed` is called at each press, an empty one ends it. The key of another program stays its own: then nothing
    /// is called.
    void watch(std::function<void()> pressed);

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    void grab();
    void letGo();

    xcb_connection_t *m_xcb;
    xcb_window_t m_root;
    QList<xcb_keycode_t> m_grabbed;
    std::function<void()> m_pressed;
};

} // namespace tessaly
