// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/WaylandConnection.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QSocketNotifier>

#include <poll.h>

namespace tessaly {

const wl_registry_listener WaylandConnection::registryListener {
    .global =
        [](void *data, wl_registry *, uint32_t name, const char *interface, uint32_t version) {
            auto *self = static_cast<WaylandConnection *>(data);
            self->m_globals.append({ name, interface, version });
            for (const Watcher &watcher : std::as_const(self->m_watchers))
                watcher.added(self->m_globals.last());
        },
    .global_remove =
        [](void *data, wl_registry *, uint32_t name) {
            auto *self = static_cast<WaylandConnection *>(data);
            self->m_globals.removeIf([name](const Global &global) { return global.name == name; });
            for (const Watcher &watcher : std::as_const(self->m_watchers))
                watcher.removed(name);
        },
};

WaylandConnection::WaylandConnection(wl_display *display) :
    m_display(display),
    m_registry(wl_display_get_registry(display))
{
    wl_registry_add_listener(m_registry, &registryListener, this);
}

WaylandConnection::~WaylandConnection()
{
    m_notifier.reset();
    wl_registry_destroy(m_registry);
    wl_display_disconnect(m_display);
}

Result<std::shared_ptr<WaylandConnection>> WaylandConnection::open()
{
    wl_display *display = wl_display_connect(nullptr);
    if (!display)
        return Failure { QCoreApplication::translate("WaylandConnection", "No Wayland compositor answers.") };
    std::shared_ptr<WaylandConnection> connection(new WaylandConnection(display));
    if (!connection->roundTrip())
        return Failure { QCoreApplication::translate("WaylandConnection", "The Wayland compositor does not answer.") };
    return connection;
}

void *WaylandConnection::bind(const Global &global, const wl_interface &interface, uint32_t newestVersion)
{
    return wl_registry_bind(m_registry, global.name, &interface, std::min(global.version, newestVersion));
}

void WaylandConnection::watch(Watcher watcher)
{
    for (const Global &global : std::as_const(m_globals))
        watcher.added(global);
    m_watchers.append(std::move(watcher));
}

void WaylandConnection::unwatch(const void *owner)
{
    m_watchers.removeIf([owner](const Watcher &watcher) { return watcher.owner == owner; });
}

bool WaylandConnection::dispatchUntil(const std::function<bool()> &done, int milliseconds)
{
    const QDeadlineTimer deadline(milliseconds);
    for (;;) {
        if (wl_display_dispatch_pending(m_display) < 0)
            return false;
        if (done())
            return true;
        if (wl_display_prepare_read(m_display) != 0)
            continue;
        const bool unsent = wl_display_flush(m_display) < 0 && errno == EAGAIN;
        pollfd socket { wl_display_get_fd(m_display), static_cast<short>(unsent ? POLLIN | POLLOUT : POLLIN), 0 };
        const int ready = ::poll(&socket, 1, static_cast<int>(deadline.remainingTime()));
        if (ready > 0 && (socket.revents & ~POLLOUT) != 0) {
            if (wl_display_read_events(m_display) < 0)
                return false;
            continue;
        }
        const bool interrupted = ready < 0 && errno == EINTR;
        wl_display_cancel_read(m_display);
        if ((ready < 0 && !interrupted) || deadline.hasExpired())
            return false;
    }
}

bool WaylandConnection::roundTrip(int milliseconds)
{
    static const wl_callback_listener listener { .done
        = [](void *data, wl_callback *, uint32_t) { *static_cast<bool *>(data) = true; } };
    bool answered = false;
    wl_callback *callback = wl_display_sync(m_display);
    wl_callback_add_listener(callback, &listener, &answered);
    const bool inTime = dispatchUntil([&answered] { return answered; }, milliseconds);
    wl_callback_destroy(callback);
    return inTime;
}

void WaylandConnection::followEvents(std::function<void()> ended)
{
    m_notifier = std::make_unique<QSocketNotifier>(wl_display_get_fd(m_display), QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(),
        [this, ended = std::move(ended)] { handleReadable(ended); });
    flush();
}

void WaylandConnection::stopFollowing() { m_notifier.reset(); }

void WaylandConnection::handleReadable(const std::function<void()> &ended)
{
    while (wl_display_prepare_read(m_display) != 0)
        wl_display_dispatch_pending(m_display);
    wl_display_read_events(m_display);
    wl_display_dispatch_pending(m_display);
    flush();
    if (isAlive() || !m_notifier->isEnabled())
        return;
    m_notifier->setEnabled(false);
    // `ended` may end this connection with everything in this object.
    const auto last = ended;
    if (last)
        last();
}

} // namespace tessaly
