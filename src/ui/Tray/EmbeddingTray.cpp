// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tray/EmbeddingTray.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace tessaly {

namespace {

struct Freed {
    void operator()(void *reply) const { std::free(reply); }
};

template <class T>
using Reply = std::unique_ptr<T, Freed>;

xcb_atom_t atomOf(xcb_connection_t *connection, const QByteArray &name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.constData());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t { XCB_ATOM_NONE };
}

xcb_connection_t *connectionOfQt()
{
    const auto *native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return native ? native->connection() : nullptr;
}

} // namespace

EmbeddingTray::EmbeddingTray(std::function<void()> changed) : m_changed(std::move(changed))
{
    m_connection = connectionOfQt();
    if (!m_connection)
        return;
    char *host = nullptr;
    int display = 0, screen = 0;
    if (!xcb_parse_display(nullptr, &host, &display, &screen))
        screen = 0;
    std::free(host);
    m_selection = atomOf(m_connection, "_NET_SYSTEM_TRAY_S" + QByteArray::number(screen));
    m_announcement = atomOf(m_connection, "MANAGER");
    look();
    QCoreApplication::instance()->installNativeEventFilter(this);
}

EmbeddingTray::~EmbeddingTray()
{
    if (QCoreApplication::instance())
        QCoreApplication::instance()->removeNativeEventFilter(this);
}

void EmbeddingTray::look()
{
    const auto cookie = xcb_get_selection_owner(m_connection, m_selection);
    const Reply<xcb_get_selection_owner_reply_t> reply(xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
    m_owner = reply ? reply->owner : xcb_window_t { XCB_WINDOW_NONE };
    if (m_owner == XCB_WINDOW_NONE)
        return;
    // Its end is told by its window; Qt asks for the same events when it puts an icon there.
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection, m_owner, XCB_CW_EVENT_MASK, &events);
    xcb_flush(m_connection);
}

bool EmbeddingTray::nativeEventFilter(const QByteArray &type, void *message, qintptr *)
{
    if (type != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    const int kind = event->response_type & 0x7f; // without the mark of sent events
    bool concerned = false;
    if (kind == XCB_CLIENT_MESSAGE) {
        const auto *told = static_cast<const xcb_client_message_event_t *>(message);
        concerned = told->type == m_announcement && told->data.data32[1] == m_selection;
    } else if (kind == XCB_DESTROY_NOTIFY) {
        concerned
            = m_owner != XCB_WINDOW_NONE && static_cast<const xcb_destroy_notify_event_t *>(message)->window == m_owner;
    }
    if (concerned) {
        look();
        m_changed();
    }
    return false;
}

} // namespace tessaly
