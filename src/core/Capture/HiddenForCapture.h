// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/OwnWindows.h"
#include "core/Screen/WindowSource.h"

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QTimer>

#include <chrono>

namespace tessaly {

/// Keeps this program's windows out of a picture: hides them once, tells when the window system shows them no longer,
/// and puts them back. Hidden again before they were put back they simply stay away.
class HiddenForCapture {
public:
    static constexpr std::chrono::milliseconds betweenLooks { 16 };

    /// `longestWait` is the most that is waited for windows to go, after the least time of a whenGone().
    HiddenForCapture(OwnWindows &ownWindows, WindowSource &windows, std::chrono::milliseconds longestWait);

    void hide();
    void restore();
    bool hidesAny() const { return !m_ids.isEmpty(); }

    /// Calls `then` once nothing hidden is shown any more and `least` has passed since it was hidden; at once when
    /// nothing was hidden. Windows that do not go are not waited for for ever. A call that still waits is dropped.
    void whenGone(std::chrono::milliseconds least, std::function<void()> then);
    /// Drops the call that waits.
    void stopWaiting();

private:
    void look();

    OwnWindows &m_ownWindows;
    WindowSource &m_windows;
    std::chrono::milliseconds m_longestWait;
    bool m_hidden = false;
    QList<quint64> m_ids;
    QElapsedTimer m_sinceHidden;
    QDeadlineTimer m_deadline;
    QTimer m_timer;
    std::function<void()> m_then;
};

} // namespace tessaly
