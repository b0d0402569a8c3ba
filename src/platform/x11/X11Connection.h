// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QRect>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

namespace tessaly {

/// Replies of the server are malloc'ed and ours to free.
struct FreeReply {
    void operator()(void *reply) const { std::free(reply); }
};
template <class Reply>
using XcbReply = std::unique_ptr<Reply, FreeReply>;

/// One connection to an X server and what it says about its default screen.
class X11Connection {
public:
    /// Connects to `display` (":0"); empty means the environment's.
    static Result<std::unique_ptr<X11Connection>> open(const QString &display);
    ~X11Connection();
    X11Connection(const X11Connection &) = delete;
    X11Connection &operator=(const X11Connection &) = delete;

    xcb_connection_t *xcb() const { return m_xcb; }
    xcb_window_t root() const { return m_screen->root; }

    /// The root window in device pixels, asked for anew: it changes when monitors do.
    QRect rootPixelRect() const;

    /// How the root window's pixels lie in memory.
    struct PixelLayout {
        int bitsPerPixel = 0;
        uint32_t redMask = 0;
        uint32_t greenMask = 0;
        uint32_t blueMask = 0;

        /// 32 bits with red, green and blue in the places of Format_RGB32; the top byte is undefined.
        bool isRgb32() const;
    };
    PixelLayout rootPixelLayout() const;

    /// Pixels per point of the desktop: the server's Xft.dpi against 96, in steps of a quarter; 1 without one.
    double scale() const;

    bool hasSharedMemory() const;

private:
    X11Connection(xcb_connection_t *xcb, xcb_screen_t *screen) : m_xcb(xcb), m_screen(screen) { }

    xcb_connection_t *m_xcb;
    xcb_screen_t *m_screen; ///< lives as long as the connection
};

} // namespace tessaly
