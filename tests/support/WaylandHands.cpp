// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/WaylandHands.h"

#include "platform/wayland/LayerShellProtocol.h"
#include "platform/wayland/SharedBuffer.h"

#include <cstring>
#include <viewporter.h>
#include <wlr-virtual-pointer-unstable-v1.h>

namespace tessaly::test {

static std::shared_ptr<WaylandConnection> opened()
{
    auto connection = WaylandConnection::open();
    return connection ? *connection : nullptr;
}

VirtualPointer::VirtualPointer() : m_connection(opened())
{
    if (!m_connection)
        return;
    m_outputs = std::make_unique<WaylandOutputs>(*m_connection);
    m_manager = m_connection->bind<zwlr_virtual_pointer_manager_v1>(zwlr_virtual_pointer_manager_v1_interface, 1);
    m_pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(m_manager, nullptr);
    m_connection->roundTrip();
}

VirtualPointer::~VirtualPointer()
{
    if (!m_pointer)
        return;
    zwlr_virtual_pointer_v1_destroy(m_pointer);
    zwlr_virtual_pointer_manager_v1_destroy(m_manager);
    m_connection->roundTrip();
}

void VirtualPointer::move(QPoint to)
{
    QRect desktop;
    for (const Display &display : m_outputs->displays())
        desktop |= display.layoutRect;
    const QPoint at = to - desktop.topLeft();
    zwlr_virtual_pointer_v1_motion_absolute(
        m_pointer, ++m_time, uint32_t(at.x()), uint32_t(at.y()), uint32_t(desktop.width()), uint32_t(desktop.height()));
    finishStep();
}

void VirtualPointer::setPressed(Button button, bool pressed)
{
    zwlr_virtual_pointer_v1_button(m_pointer, ++m_time, static_cast<uint32_t>(button),
        pressed ? WL_POINTER_BUTTON_STATE_PRESSED : WL_POINTER_BUTTON_STATE_RELEASED);
    finishStep();
}

void VirtualPointer::finishStep()
{
    zwlr_virtual_pointer_v1_frame(m_pointer);
    m_connection->roundTrip();
}

void VirtualPointer::click(QPoint at, Button button)
{
    move(at);
    press(button);
    release(button);
}

void VirtualPointer::drag(QPoint from, QPoint to)
{
    constexpr int steps = 8;
    move(from);
    press();
    for (int step = 1; step <= steps; ++step)
        move(from + (to - from) * step / steps);
    release();
}

ScreenPicture::ScreenPicture(const QString &monitor, const QImage &picture) : m_connection(opened())
{
    if (!m_connection)
        return;
    auto outputs = std::make_shared<WaylandOutputs>(*m_connection);
    m_endings.prepend([outputs] {}); // lives as long as what is on it
    m_connection->roundTrip();
    const auto *output = outputs->find(monitor);
    const auto display = output ? output->display() : std::nullopt;
    m_shown = display && display->pixelSize == picture.size() && show(*output, *display, picture);
}

ScreenPicture::~ScreenPicture()
{
    for (const auto &ending : std::as_const(m_endings))
        ending();
    if (m_connection)
        m_connection->roundTrip();
}

bool ScreenPicture::show(const WaylandOutput &output, const Display &display, const QImage &picture)
{
    auto *compositor = m_connection->bind<wl_compositor>(wl_compositor_interface, 4);
    auto *layers = m_connection->bind<zwlr_layer_shell_v1>(zwlr_layer_shell_v1_interface, 3);
    auto *viewporter = m_connection->bind<wp_viewporter>(wp_viewporter_interface, 1);
    auto *sharing = m_connection->bind<wl_shm>(wl_shm_interface, 1);
    wl_surface *surface = wl_compositor_create_surface(compositor);
    auto *layer = zwlr_layer_shell_v1_get_layer_surface(
        layers, surface, output.output, ZWLR_LAYER_SHELL_V1_LAYER_BACKGROUND, "picture");
    wp_viewport *viewport = wp_viewporter_get_viewport(viewporter, surface);
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB32);
    const auto buffer = SharedBuffer::create(
        m_connection, sharing, { WL_SHM_FORMAT_XRGB8888, pixels.size(), int(pixels.bytesPerLine()) });
    std::memcpy(buffer->memory(), pixels.constBits(), size_t(pixels.sizeInBytes()));
    m_endings.prepend([=] {
        wp_viewport_destroy(viewport);
        zwlr_layer_surface_v1_destroy(layer);
        wl_surface_destroy(surface);
        wl_shm_destroy(sharing);
        wp_viewporter_destroy(viewporter);
        zwlr_layer_shell_v1_destroy(layers);
        wl_compositor_destroy(compositor);
        (void)buffer;
    });
    static const zwlr_layer_surface_v1_listener listener {
        .configure = [](void *, zwlr_layer_surface_v1 *configured, uint32_t serial, uint32_t,
                         uint32_t) { zwlr_layer_surface_v1_ack_configure(configured, serial); },
        .closed = [](void *, zwlr_layer_surface_v1 *) {},
    };
    zwlr_layer_surface_v1_add_listener(layer, &listener, nullptr);
    zwlr_layer_surface_v1_set_anchor(layer, 15);
    zwlr_layer_surface_v1_set_exclusive_zone(layer, -1);
    wl_surface_commit(surface);
    m_connection->roundTrip();

    bool drawn = false;
    static const wl_callback_listener drawnListener { .done
        = [](void *data, wl_callback *, uint32_t) { *static_cast<bool *>(data) = true; } };
    wp_viewport_set_destination(viewport, display.layoutRect.width(), display.layoutRect.height());
    wl_surface_attach(surface, buffer->buffer(), 0, 0);
    wl_surface_damage_buffer(surface, 0, 0, picture.width(), picture.height());
    wl_callback *callback = wl_surface_frame(surface);
    wl_callback_add_listener(callback, &drawnListener, &drawn);
    wl_surface_commit(surface);
    const bool shown = m_connection->dispatchUntil([&drawn] { return drawn; });
    wl_callback_destroy(callback);
    return shown;
}

} // namespace tessaly::test
