// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <xcb/xcb.h>

namespace tessaly {

/// The names that are used of a server's atoms.
enum class X11Atom {
    NetActiveWindow,
    NetClientListStacking,
    NetCurrentDesktop,
    NetFrameExtents,
    NetSupported,
    NetWmBypassCompositor,
    NetWmDesktop,
    NetWmName,
    NetWmPid,
    NetWmState,
    NetWmStateAbove,
    NetWmStateHidden,
    NetWmStateSkipPager,
    NetWmStateSkipTaskbar,
    NetWmStateSticky,
    NetWmWindowType,
    NetWmWindowTypeDesktop,
    NetWmWindowTypeDialog,
    NetWmWindowTypeNormal,
    NetWmWindowTypeToolbar,
    NetWmWindowTypeUtility,
    GtkFrameExtents,
    XRootPixmap,
    Utf8String,
    Count,
};

/// The server's numbers of these names, all asked for at once.
class X11Atoms {
public:
    explicit X11Atoms(xcb_connection_t *xcb);

    /// XCB_ATOM_NONE when the connection is broken.
    xcb_atom_t operator[](X11Atom atom) const { return m_atoms[static_cast<size_t>(atom)]; }

private:
    std::array<xcb_atom_t, static_cast<size_t>(X11Atom::Count)> m_atoms {};
};

/// Whether a compositing manager draws the screen: it owns the selection of that purpose.
bool hasCompositingManager(xcb_connection_t *xcb, int screenNumber);

} // namespace tessaly
