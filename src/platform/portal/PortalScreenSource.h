// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/ScreenSource.h"

#include <chrono>
#include <memory>

namespace tessaly {

/// The screen through the desktop portal (org.freedesktop.portal.Screenshot), which may ask the user. Each capture is a
/// picture of the whole desktop, cut to size; captures that follow within a fifth of a second, as those of one display
/// after the other, show the same picture, so that nobody is asked twice.
///
/// A display of the largest scale is exact to the pixel. One of a smaller scale was enlarged by the desktop and is made
/// smaller again, exact only where the desktop had repeated the pixels.
///
/// With repeated use answers come from the event loop. With a single use capture() returns after the answer: it runs an
/// event loop until then, with a QCoreApplication of its own where there is none, so that a command needs neither.
class PortalScreenSource final : public ScreenSource {
public:
    static constexpr std::chrono::milliseconds usualPatience { 10000 };
    using Monitors = std::function<QList<Display>()>;

    /// `monitors` tells the displays; where it tells none they are the screens of QGuiApplication. Without those, too,
    /// the whole picture is one display, and displays() takes it and waits. The bus is spoken to when something is
    /// captured. A portal that does not answer for `patience` has failed; its dialog may take longer.
    explicit PortalScreenSource(
        CaptureUse use, Monitors monitors = {}, std::chrono::milliseconds patience = usualPatience);
    ~PortalScreenSource() override;

    Result<QList<Display>> displays() override;
    void capture(const Shot &shot, Answer answer) override;
    bool isImmediate() const override { return false; }
    std::optional<QString> wayOut() const override;
    void whenSettled(std::function<void()> then) override;
    void release() override;

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
