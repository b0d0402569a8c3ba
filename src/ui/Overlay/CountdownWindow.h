// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/CaptureCountdown.h"

#include <memory>

namespace tessaly {

class WindowLayers;

/// The countdown as a small window in the middle of the primary screen. There must be a QApplication.
class CountdownWindow final : public CountdownView {
public:
    explicit CountdownWindow(WindowLayers &layers);
    ~CountdownWindow() override;

    void show(int seconds, std::function<void()> onClick) override;
    void setNumber(int seconds) override;
    void hide() override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
