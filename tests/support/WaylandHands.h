// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/wayland/WaylandOutputs.h"

#include <QImage>

struct wl_surface;
struct zwlr_layer_surface_v1;
struct zwlr_virtual_pointer_manager_v1;
struct zwlr_virtual_pointer_v1;

namespace tessaly::test {

/// A mouse of the session, plugged in as long as the object lives.
class VirtualPointer {
public:
    enum class Button : uint32_t { Left = 0x110, Right = 0x111 };

    VirtualPointer();
    ~VirtualPointer();

    /// Places are in points of the whole desktop.
    void move(QPoint to);
    void press(Button button = Button::Left) { setPressed(button, true); }
    void release(Button button = Button::Left) { setPressed(button, false); }
    void click(QPoint at, Button button = Button::Left);
    void drag(QPoint from, QPoint to);

private:
    void setPressed(Button button, bool pressed);
    void finishStep();

    std::shared_ptr<WaylandConnection> m_connection;
    std::unique_ptr<WaylandOutputs> m_outputs;
    zwlr_virtual_pointer_manager_v1 *m_manager = nullptr;
    zwlr_virtual_pointer_v1 *m_pointer = nullptr;
    uint32_t m_time = 0;
};

/// A picture on the whole of a monitor, pixel by pixel, behind all windows, as long as the object lives.
class ScreenPicture {
public:
    /// The picture has as many pixels as the monitor. Returns when it can be seen.
    ScreenPicture(const QString &monitor, const QImage &picture);
    ~ScreenPicture();

    bool isShown() const { return m_shown; }

private:
    bool show(const WaylandOutput &output, const Display &display, const QImage &picture);

    std::shared_ptr<WaylandConnection> m_connection;
    QList<std::function<void()>> m_endings; ///< newest first
    bool m_shown = false;
};

} // namespace tessaly::test
