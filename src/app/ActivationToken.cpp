// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ActivationToken.h"

#include <private/qtx11extras_p.h>
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace tessaly::ActivationToken {

static xcb_atom_t atom(xcb_connection_t *connection, const QByteArray &name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.constData());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// The desktop's sign of waiting goes: the program that was started shows no window of its own. The message goes to the
/// root window in pieces of 20 bytes.
static void finishStartup(const QByteArray &startupId)
{
    xcb_connection_t *connection = QX11Info::connection();
    const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const QByteArray quoted = QByteArray(startupId).replace('\\', "\\\\").replace('"', "\\\"");
    const QByteArray message = "remove: ID=\"" + quoted + '"';
    xcb_client_message_event_t event {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 8;
    event.window = xcb_generate_id(connection);
    event.type = atom(connection, "_NET_STARTUP_INFO_BEGIN");
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, event.window, screen->root, 0, 0, 1, 1, 0,
        XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    constexpr qsizetype piece = sizeof event.data.data8;
    for (qsizetype at = 0; at <= message.size(); at += piece) { // a zero ends it
        const QByteArray bytes = message.mid(at, piece).leftJustified(piece, '\0');
        std::ranges::copy(bytes, reinterpret_cast<char *>(event.data.data8));
        xcb_send_event(
            connection, 0, screen->root, XCB_EVENT_MASK_PROPERTY_CHANGE, reinterpret_cast<const char *>(&event));
        event.type = atom(connection, "_NET_STARTUP_INFO");
    }
    xcb_destroy_window(connection, event.window);
    xcb_flush(connection);
}

/// X11's tokens end with the time of the click or key that started the program.
static void takeTime(const QString &startupId)
{
    constexpr QStringView mark = u"_TIME";
    const qsizetype at = startupId.lastIndexOf(mark);
    bool isNumber = false;
    const quint32 time = at < 0 ? 0 : QStringView(startupId).mid(at + mark.size()).toUInt(&isNumber);
    if (isNumber && time > QX11Info::appUserTime()) {
        QX11Info::setAppTime(time);
        QX11Info::setAppUserTime(time);
    }
}

void take(const QVariantMap &platformData)
{
    const QString token = platformData.value(QStringLiteral("activation-token")).toString();
    const QString startupId = platformData.value(QStringLiteral("desktop-startup-id")).toString();
    if (QX11Info::isPlatformX11()) {
        takeTime(startupId.isEmpty() ? token : startupId);
        if (!startupId.isEmpty())
            finishStartup(startupId.toUtf8());
    } else if (!token.isEmpty()) {
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8()); // from where Qt takes it, once
    }
}

} // namespace tessaly::ActivationToken
