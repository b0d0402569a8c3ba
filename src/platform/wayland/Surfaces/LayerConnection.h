// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <memory>

struct wl_compositor;
struct wl_display;
struct wl_event_queue;
struct wl_output;
struct wl_surface;
struct zwlr_layer_shell_v1;
class QScreen;
class QWindow;

namespace tessaly {

/// Layers and what they need on Qt's connection to the compositor, with events in a queue of their own: Qt hands out
/// its surfaces, and no other connection may give them a place.
class LayerConnection : public QObject {
public:
    /// Null where the compositor has no layers.
    static std::shared_ptr<LayerConnection> create();
    ~LayerConnection() override;

    zwlr_layer_shell_v1 *layers() const { return m_layers; }
    wl_compositor *compositor() const { return m_compositor; }

    /// Returns when the compositor has handled all requests, those of Qt included, and its answers are handled.
    void roundTrip();

    /// Makes what was asked of a surface effective, now and not when Qt next waits for events.
    void commit(wl_surface *surface);

    /// Null while the window has none: Qt makes a new one each time that it is shown.
    static wl_surface *surfaceOf(QWindow &window);
    static wl_output *outputOf(QScreen &screen);

private:
    explicit LayerConnection(wl_display *display);
    void bindGlobals();

    wl_display *m_display;
    wl_event_queue *m_queue;
    zwlr_layer_shell_v1 *m_layers = nullptr;
    wl_compositor *m_compositor = nullptr;
};

} // namespace tessaly
