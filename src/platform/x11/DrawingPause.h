// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/X11Connection.h"

#include <QElapsedTimer>
#include <QTimer>

#include <functional>
#include <vector>
#include <xcb/damage.h>

namespace tessaly {

/// Finds the moment when the programs, or the compositing manager, have drawn again what a window covered that is now
/// gone. Nobody says so: it is the first pause in the drawing after they have had the time to begin. Needs a running
/// event loop and costs nothing while nobody waits.
class DrawingPause {
public:
    explicit DrawingPause(std::shared_ptr<X11Connection> connection);
    ~DrawingPause();

    /// Calls back after some 60 ms, or when a longer drawing has paused, at the latest after half a second: a film
    /// never pauses. With a compositing manager it is as soon as that has drawn. Not at all once this is destroyed.
    void wait(std::function<void()> then);

private:
    void look();
    bool isOver() const;
    void end();

    std::shared_ptr<X11Connection> m_connection;
    std::vector<std::function<void()>> m_waiting;
    QTimer m_timer;
    QElapsedTimer m_firstAsked;
    QElapsedTimer m_lastAsked;
    QElapsedTimer m_lastDrawn; ///< invalid as long as nothing was drawn
    bool m_composited = false;
    xcb_damage_damage_t m_damage = XCB_NONE;
};

} // namespace tessaly
