// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/Monitors.h"

#include "platform/x11/X11Reply.h"

#include <xcb/randr.h>

namespace tessaly::Monitors {

static QString atomName(xcb_connection_t *xcb, xcb_atom_t atom)
{
    const XcbReply<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(xcb, xcb_get_atom_name(xcb, atom), nullptr));
    return reply ? QString::fromUtf8(xcb_get_atom_name_name(reply.get()), xcb_get_atom_name_name_length(reply.get()))
                 : QString();
}

QList<Display> list(xcb_connection_t *xcb, xcb_window_t root)
{
    const auto *extension = xcb_get_extension_data(xcb, &xcb_randr_id);
    if (!extension || !extension->present)
        return {};
    const XcbReply<xcb_randr_get_monitors_reply_t> reply(
        xcb_randr_get_monitors_reply(xcb, xcb_randr_get_monitors(xcb, root, 1), nullptr));
    QList<Display> displays;
    auto monitor = reply ? xcb_randr_get_monitors_monitors_iterator(reply.get()) : xcb_randr_monitor_info_iterator_t {};
    for (; monitor.rem > 0; xcb_randr_monitor_info_next(&monitor)) {
        const auto &info = *monitor.data;
        displays.append({ atomName(xcb, info.name), QRect(info.x, info.y, info.width, info.height),
            QSize(info.width, info.height), 1, info.primary != 0 });
    }
    return displays;
}

} // namespace tessaly::Monitors
