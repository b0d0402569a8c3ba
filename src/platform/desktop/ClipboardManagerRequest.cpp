// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/desktop/ClipboardManagerRequest.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

#include <xcb/xcb.h>

#include <cstdlib>

namespace tessaly::ClipboardManagerRequest {

namespace {

template <class Reply>
using ReplyPointer = std::unique_ptr<Reply, decltype(&std::free)>;

xcb_atom_t atom(xcb_connection_t *connection, const QByteArray &name)
{
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.constData());
    const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr), &std::free);
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

/// One request on Qt's own connection; Qt serves the manager's fetching while this waits.
class Request final : public QAbstractNativeEventFilter {
public:
    explicit Request(xcb_connection_t *connection) :
        m_connection(connection),
        m_manager(atom(connection, "CLIPBOARD_MANAGER"))
    {
    }

    bool managerIsThere() const
    {
        const auto cookie = xcb_get_selection_owner(m_connection, m_manager);
        const ReplyPointer<xcb_get_selection_owner_reply_t> reply(
            xcb_get_selection_owner_reply(m_connection, cookie, nullptr), &std::free);
        return reply && reply->owner != XCB_NONE;
    }

    void run(const QStringList &types)
    {
        createWindow();
        QList<xcb_atom_t> targets;
        for (const QString &type : types)
            targets += atom(m_connection, type.toLatin1());
        const xcb_atom_t property = atom(m_connection, "TESSALY_SAVE_TARGETS");
        xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_window, property, XCB_ATOM_ATOM, 32,
            static_cast<uint32_t>(targets.size()), targets.constData());
        xcb_convert_selection(
            m_connection, m_window, m_manager, atom(m_connection, "SAVE_TARGETS"), property, XCB_CURRENT_TIME);
        xcb_flush(m_connection);
        waitForAnswer();
        xcb_destroy_window(m_connection, m_window);
        xcb_flush(m_connection);
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        const auto *event = static_cast<xcb_generic_event_t *>(message);
        const int type = event->response_type & ~0x80;
        if (type == XCB_SELECTION_REQUEST || type == XCB_PROPERTY_NOTIFY)
            m_heard = true;
        if (type != XCB_SELECTION_NOTIFY
            || reinterpret_cast<const xcb_selection_notify_event_t *>(event)->requestor != m_window)
            return false;
        m_loop.quit();
        return true;
    }

private:
    void createWindow()
    {
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen->root, 0, 0, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    }

    void waitForAnswer()
    {
        // Silence is two looks in a row without a sign: encoding what was asked for may outlast one.
        constexpr std::chrono::milliseconds betweenLooks(350);
        int silentLooks = 0;
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, &m_loop, [&] {
            silentLooks = m_heard ? 0 : silentLooks + 1;
            m_heard = false;
            if (silentLooks == 2)
                m_loop.quit();
        });
        timer.start(betweenLooks);
        QCoreApplication::instance()->installNativeEventFilter(this);
        m_loop.exec();
        QCoreApplication::instance()->removeNativeEventFilter(this);
    }

    xcb_connection_t *m_connection;
    xcb_atom_t m_manager;
    xcb_window_t m_window = XCB_NONE;
    QEventLoop m_loop;
    bool m_heard = false;
};

} // namespace

bool isPossible()
{
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 && Request(x11->connection()).managerIsThere();
}

void run(const QStringList &types)
{
    auto *x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return;
    Request request(x11->connection());
    if (request.managerIsThere())
        request.run(types);
}

} // namespace tessaly::ClipboardManagerRequest
