// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/WindowSource.h"

namespace tessaly {

/// The windows that can be picked, as they lay when they were asked for. One for the program.
class WindowPicker {
public:
    explicit WindowPicker(WindowSource &source) : m_source(source) { }
    ~WindowPicker() { release(); }
    WindowPicker(const WindowPicker &) = delete;
    WindowPicker &operator=(const WindowPicker &) = delete;

    /// Whether windows can be picked on this desktop at all.
    bool isAvailable() const { return m_source.canList(); }

    /// Asks for the windows anew. On failure there are none to pick.
    Outcome prepare();
    const QList<ScreenWindow> &windows() const { return m_windows; }

    /// The frontmost of them at a place on the desktop (layout units). The first question after prepare() begins the
    /// picking: from then on the desktop keeps what is covered of them.
    std::optional<ScreenWindow> windowAt(QPointF layoutPoint) const;

    /// Picking is over: forgets the windows, and the desktop need not keep them any longer.
    void release();

private:
    WindowSource &m_source;
    QList<ScreenWindow> m_windows;
    mutable bool m_picking = false;
};

} // namespace tessaly
