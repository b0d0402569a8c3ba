// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/ScreenSource.h"

#include <memory>

namespace tessaly {

/// The screen of a Wayland compositor that offers wlr-screencopy, on a connection of its own.
class WaylandScreenSource final : public ScreenSource {
public:
    /// Fails when there is no compositor or it does not offer it.
    static Result<std::unique_ptr<ScreenSource>> create(CaptureUse use);

    /// The monitors of the session's compositor, also of one that does not offer it; none when it does not tell.
    static QList<Display> monitors();
    ~WaylandScreenSource() override;

    Result<QList<Display>> displays() override;
    void capture(const Shot &shot, Answer answer) override;
    void whenSettled(std::function<void()> then) override;
    void release() override;

private:
    struct Implementation;
    explicit WaylandScreenSource(std::unique_ptr<Implementation> implementation);
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
