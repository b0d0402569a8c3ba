// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/wayland/Surfaces/LayerConnection.h"
#include "platform/wayland/Surfaces/LayerShell.h"

#include <QWindow>

struct zwlr_layer_surface_v1;

namespace tessaly {

/// Gives a window of Qt its place in the layers each time that it is shown; a child of the window.
///
/// Qt is told to give the window no role of its own (BypassWindowManagerHint). Its surface is made when the window is,
/// or in its later shows, and painted on after the first event that the window is sent then: the role is given before.
class LayerWindow final : public QObject {
    Q_OBJECT

public:
    LayerWindow(std::shared_ptr<LayerConnection> connection, QWindow &window, const LayerPlace &place);
    ~LayerWindow() override;

    const LayerPlace &place() const { return m_place; }
    void setPlace(const LayerPlace &place);
    void setPassesClicks(bool passes);
    bool isShown() const { return m_layer != nullptr; }

    /// Lies below the other windows in the layers, and still above usual ones, or among them again.
    void stepBack(bool back);

    bool eventFilter(QObject *object, QEvent *event) override;

Q_SIGNALS:
    void shown(bool shown);

private:
    uint32_t layer() const;
    void takePlace();
    void leavePlace();
    void tellPlace();
    void applyPlace();
    void applyInput();
    void configured(uint32_t serial, QSize size);
    void closedByCompositor();

    std::shared_ptr<LayerConnection> m_connection;
    QWindow &m_window;
    LayerPlace m_place;
    bool m_passesClicks = false;
    bool m_stepsBack = false;
    bool m_isPressed = false; ///< a button is held on it
    zwlr_layer_surface_v1 *m_layer = nullptr;
};

} // namespace tessaly
