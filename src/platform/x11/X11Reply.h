// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

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

/// A property of a window, asked for when this is made and waited for when it is first read, so that many can be under
/// way at once.
class PropertyRequest {
public:
    PropertyRequest(xcb_connection_t *xcb, xcb_window_t window, xcb_atom_t property);
    PropertyRequest(PropertyRequest &&other) noexcept;
    ~PropertyRequest();
    PropertyRequest &operator=(PropertyRequest &&) = delete;

    /// The values of a property of 32-bit numbers; empty when there is none.
    QList<quint32> numbers();
    /// The first of them; `absent` when there is none.
    quint32 number(quint32 absent);
    /// The bytes of a property of text.
    QByteArray bytes();

private:
    void wait();

    xcb_connection_t *m_xcb;
    xcb_get_property_cookie_t m_request;
    bool m_waiting = true;
    XcbReply<xcb_get_property_reply_t> m_reply;
};

} // namespace tessaly
