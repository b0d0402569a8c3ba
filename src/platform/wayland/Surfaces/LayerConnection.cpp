// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/Surfaces/LayerConnection.h"

#include "platform/wayland/LayerShellProtocol.h"

#include <QAbstractEventDispatcher>
#include <QGuiApplication>
#include <QScreen>
#include <QThread>
#include <QWindow>

#include <qpa/qplatformnativeinterface.h>
#include <wayland-client.h>

namespace tessaly {

namespace {

/// The globals that are wanted, and where they go.
struct Wanted {
    zwlr_layer_shell_v1 *&layers;
    wl_compositor *&compositor;
};

const wl_registry_listener registryListener {
    .global =
        [](void *data, wl_registry *registry, uint32_t name, const char *interface, uint32_t version) {
            auto &wanted = *static_cast<Wanted *>(data);
            if (qstrcmp(interface, zwlr_layer_shell_v1_interface.name) == 0)
                wanted.layers = static_cast<zwlr_layer_shell_v1 *>(
                    wl_registry_bind(registry, name, &zwlr_layer_shell_v1_interface, std::min(version, 4u)));
            else if (qstrcmp(interface, wl_compositor_interface.name) == 0)
                wanted.compositor
                    = static_cast<wl_compositor *>(wl_registry_bind(registry, name, &wl_compositor_interface, 1));
        },
    .global_remove = [](void *, wl_registry *, uint32_t) {},
};

} // namespace

std::shared_ptr<LayerConnection> LayerConnection::create()
{
    auto *native = QGuiApplication::platformNativeInterface();
    auto *display = native ? static_cast<wl_display *>(native->nativeResourceForIntegration("wl_display")) : nullptr;
    if (!display)
        return nullptr;
    std::shared_ptr<LayerConnection> connection(new LayerConnection(display));
    return connection->m_layers && connection->m_compositor ? connection : nullptr;
}

LayerConnection::LayerConnection(wl_display *display) : m_display(display), m_queue(wl_display_create_queue(display))
{
    bindGlobals();
    // Qt's thread reads the events of this queue too, and wakes the loop.
    connect(thread()->eventDispatcher(), &QAbstractEventDispatcher::aboutToBlock, this,
        [this] { wl_display_dispatch_queue_pending(m_display, m_queue); });
}

LayerConnection::~LayerConnection()
{
    if (!qGuiApp)
        return; // everything went with Qt's connection
    if (m_layers)
        zwlr_layer_shell_v1_destroy(m_layers);
    if (m_compositor)
        wl_compositor_destroy(m_compositor);
    wl_event_queue_destroy(m_queue);
}

void LayerConnection::bindGlobals()
{
    auto *display = static_cast<wl_display *>(wl_proxy_create_wrapper(m_display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy *>(display), m_queue);
    wl_registry *registry = wl_display_get_registry(display);
    wl_proxy_wrapper_destroy(display);
    Wanted wanted { m_layers, m_compositor };
    wl_registry_add_listener(registry, &registryListener, &wanted);
    roundTrip();
    wl_registry_destroy(registry);
}

void LayerConnection::roundTrip() { wl_display_roundtrip_queue(m_display, m_queue); }

void LayerConnection::commit(wl_surface *surface)
{
    wl_surface_commit(surface);
    wl_display_flush(m_display);
}

wl_surface *LayerConnection::surfaceOf(QWindow &window)
{
    return window.handle() ? static_cast<wl_surface *>(
               QGuiApplication::platformNativeInterface()->nativeResourceForWindow("surface", &window))
                           : nullptr;
}

wl_output *LayerConnection::outputOf(QScreen &screen)
{
    return static_cast<wl_output *>(
        QGuiApplication::platformNativeInterface()->nativeResourceForScreen("output", &screen));
}

} // namespace tessaly
