// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/WindowLayers.h"

#include <memory>

namespace tessaly {

/// Windows above others on an X server: covers that no window manager touches, floats by its "above" state. There must
/// be a QGuiApplication on that server.
class X11Layers final : public WindowLayers {
public:
    X11Layers();
    ~X11Layers() override;

    /// While a compositing manager runs.
    bool showsTransparency() const override;
    bool takesParts() const override { return m_implementation != nullptr; }
    void prepareCover(QWindow &window, QScreen &screen) override;
    void showCover(QWindow &window) override;
    void hideCover(QWindow &window) override;
    bool canStayAbove() const override;
    bool canPlace() const override { return true; }
    void prepareFloat(QWindow &window, QScreen &screen, const QRect &rect, Keyboard keyboard) override;
    void moveFloat(QWindow &window, const QRect &rect) override;
    void setPassesClicks(QWindow &window, bool passes) override;
    bool watchEscape(std::function<void()> pressed) override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
