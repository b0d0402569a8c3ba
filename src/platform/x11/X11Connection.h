// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "platform/x11/X11Atoms.h"
#include "platform/x11/X11Reply.h"

#include <QRect>

#include <memory>
#include <optional>

namespace tessaly {

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

    /// How pixels lie in the server's pictures.
    struct PixelLayout {
        int bitsPerPixel = 0;
        uint32_t redMask = 0;
        uint32_t greenMask = 0;
        uint32_t blueMask = 0;

        /// 32 bits with red, green and blue in the places of Format_RGB32; the top byte is undefined.
        bool isRgb32() const;
    };
    PixelLayout rootPixelLayout() const;
    /// The same for another visual of the screen; without bits when the server does not have it.
    PixelLayout pixelLayout(uint8_t depth, xcb_visualid_t visual) const;
    uint8_t rootDepth() const { return m_screen->root_depth; }

    /// The server's Xft.dpi, the resolution that its programs draw text for; 0 without one.
    double textDpi() const;

    /// Asked of the server at the first use.
    const X11Atoms &atoms() const;

    bool hasExtension(xcb_extension_t &extension) const;
    bool hasCompositingManager() const { return tessaly::hasCompositingManager(m_xcb, m_screenNumber); }

    /// The first event that has come of the type, the others before it dropped; null for none. A connection that asked
    /// for no events still gets some, and errors of windows that went away: without this call they pile up.
    XcbReply<xcb_generic_event_t> takeEvent(uint8_t type) const;
    void dropEvents() const;

private:
    X11Connection(xcb_connection_t *xcb, xcb_screen_t *screen, int screenNumber);

    xcb_connection_t *m_xcb;
    xcb_screen_t *m_screen; ///< lives as long as the connection
    int m_screenNumber;
    mutable std::optional<X11Atoms> m_atoms;
};

} // namespace tessaly
