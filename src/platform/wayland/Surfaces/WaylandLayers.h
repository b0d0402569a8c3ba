// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/WindowLayers.h"

#include <memory>

namespace tessaly {

class LayerShell;

/// Windows above others on a Wayland compositor: by layer-shell where it has it, else covers are full-screen windows
/// and floats are usual ones. TESSALY_LAYERS=none in the environment does without it. There must be a QGuiApplication,
/// made with QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT=1. Of floats in the layers Qt knows the place, and tells of moves.
class WaylandLayers final : public WindowLayers {
public:
    WaylandLayers();
    ~WaylandLayers() override;

    /// With layer-shell.
    bool showsTransparency() const override { return m_shell != nullptr; }
    void prepareCover(QWindow &window, QScreen &screen) override;
    void showCover(QWindow &window) override;
    void hideCover(QWindow &window) override;
    bool canStayAbove() const override { return m_shell != nullptr; }
    bool canPlace() const override { return m_shell != nullptr; }
    void prepareFloat(QWindow &window, QScreen &screen, const QRect &rect, Keyboard keyboard) override;
    void moveFloat(QWindow &window, const QRect &rect) override;
    void setPassesClicks(QWindow &window, bool passes) override;

private:
    std::unique_ptr<LayerShell> m_shell; ///< null where there are no layers
};

} // namespace tessaly
