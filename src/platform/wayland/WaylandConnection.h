// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QList>

#include <functional>
#include <memory>

#include <wayland-client.h>

class QSocketNotifier;

namespace tessaly {

/// A connection to the Wayland compositor beside Qt's own, so that nothing of it waits for Qt and the command line
/// needs no QGuiApplication. Works without an event loop. One thread only.
class WaylandConnection {
public:
    /// How long a compositor may take to answer, in milliseconds, before it counts as dead.
    static constexpr int patience = 2000;

    /// Connects to the compositor of WAYLAND_DISPLAY and learns what it offers.
    static Result<std::shared_ptr<WaylandConnection>> open();
    ~WaylandConnection();
    WaylandConnection(const WaylandConnection &) = delete;
    WaylandConnection &operator=(const WaylandConnection &) = delete;

    wl_display *display() const { return m_display; }
    /// False for ever once the compositor has gone or has refused a request.
    bool isAlive() const { return wl_display_get_error(m_display) == 0; }

    struct Global {
        uint32_t name; ///< the compositor's number
        QByteArray interface;
        uint32_t version;
    };
    const QList<Global> &globals() const { return m_globals; }

    /// The first object of a kind that the compositor offers, in the newest version that both know; null without one.
    template <class Proxy>
    Proxy *bind(const wl_interface &interface, uint32_t newestVersion)
    {
        for (const Global &global : m_globals) {
            if (global.interface == interface.name)
                return static_cast<Proxy *>(bind(global, interface, newestVersion));
        }
        return nullptr;
    }
    void *bind(const Global &global, const wl_interface &interface, uint32_t newestVersion);

    /// Told about each object that comes or goes from now on, and at once about those that are there.
    struct Watcher {
        const void *owner;
        std::function<void(const Global &)> added;
        std::function<void(uint32_t name)> removed;
    };
    void watch(Watcher watcher);
    void unwatch(const void *owner);

    /// Handles events until `done`; false when that took longer than so many milliseconds or the compositor has gone.
    bool dispatchUntil(const std::function<bool()> &done, int milliseconds = patience);
    /// Until the compositor has handled every request made so far.
    bool roundTrip(int milliseconds = patience);
    void flush() { wl_display_flush(m_display); }

    /// From now on the thread's event loop handles events as they come. `ended` is called once, from there, when the
    /// compositor has gone.
    void followEvents(std::function<void()> ended);
    void stopFollowing();

private:
    explicit WaylandConnection(wl_display *display);
    static const wl_registry_listener registryListener;
    void handleReadable(const std::function<void()> &ended);

    wl_display *m_display;
    wl_registry *m_registry;
    QList<Global> m_globals;
    QList<Watcher> m_watchers;
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace tessaly
