// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11Atoms.h"

#include "platform/x11/X11Reply.h"

#include <QByteArray>

#include <string_view>

namespace tessaly {

using namespace std::string_view_literals;

// In the order of X11Atom.
static constexpr std::array names {
    "_NET_ACTIVE_WINDOW"sv,
    "_NET_CLIENT_LIST_STACKING"sv,
    "_NET_CURRENT_DESKTOP"sv,
    "_NET_FRAME_EXTENTS"sv,
    "_NET_SUPPORTED"sv,
    "_NET_WM_BYPASS_COMPOSITOR"sv,
    "_NET_WM_DESKTOP"sv,
    "_NET_WM_NAME"sv,
    "_NET_WM_PID"sv,
    "_NET_WM_STATE"sv,
    "_NET_WM_STATE_ABOVE"sv,
    "_NET_WM_STATE_HIDDEN"sv,
    "_NET_WM_STATE_SKIP_PAGER"sv,
    "_NET_WM_STATE_SKIP_TASKBAR"sv,
    "_NET_WM_STATE_STICKY"sv,
    "_NET_WM_WINDOW_TYPE"sv,
    "_NET_WM_WINDOW_TYPE_DESKTOP"sv,
    "_NET_WM_WINDOW_TYPE_DIALOG"sv,
    "_NET_WM_WINDOW_TYPE_NORMAL"sv,
    "_NET_WM_WINDOW_TYPE_TOOLBAR"sv,
    "_NET_WM_WINDOW_TYPE_UTILITY"sv,
    "_GTK_FRAME_EXTENTS"sv,
    "_XROOTPMAP_ID"sv,
    "UTF8_STRING"sv,
};
static_assert(names.size() == static_cast<size_t>(X11Atom::Count));

X11Atoms::X11Atoms(xcb_connection_t *xcb)
{
    std::array<xcb_intern_atom_cookie_t, names.size()> requests;
    for (size_t index = 0; index < names.size(); ++index)
        requests[index] = xcb_intern_atom(xcb, 0, static_cast<uint16_t>(names[index].size()), names[index].data());
    for (size_t index = 0; index < names.size(); ++index) {
        const XcbReply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(xcb, requests[index], nullptr));
        m_atoms[index] = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    }
}

bool hasCompositingManager(xcb_connection_t *xcb, int screenNumber)
{
    const QByteArray name = "_NET_WM_CM_S" + QByteArray::number(screenNumber);
    const XcbReply<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(
        xcb, xcb_intern_atom(xcb, 0, static_cast<uint16_t>(name.size()), name.constData()), nullptr));
    if (!atom)
        return false;
    const XcbReply<xcb_get_selection_owner_reply_t> owner(
        xcb_get_selection_owner_reply(xcb, xcb_get_selection_owner(xcb, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

} // namespace tessaly
