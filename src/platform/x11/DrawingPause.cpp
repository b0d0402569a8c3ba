// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/DrawingPause.h"

namespace tessaly {

namespace {
constexpr int lookEvery = 4; // ms
constexpr qint64 timeToBegin = 50; // ms; a program that waits for its next frame begins within it
constexpr qint64 oneFrame = 20; // ms
constexpr qint64 pause = 12; // ms; less than lies between two frames of an animation elsewhere on the screen
constexpr qint64 longest = 490; // ms, so that with the last look it is not above half a second
} // namespace

DrawingPause::DrawingPause(std::shared_ptr<X11Connection> connection) : m_connection(std::move(connection))
{
    m_timer.setInterval(lookEvery);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.callOnTimeout([this] { look(); });
}

DrawingPause::~DrawingPause()
{
    if (m_damage != XCB_NONE)
        xcb_damage_destroy(m_connection->xcb(), m_damage);
}

void DrawingPause::wait(std::function<void()> then)
{
    m_waiting.push_back(std::move(then));
    m_lastAsked.start();
    m_lastDrawn.invalidate();
    if (m_timer.isActive())
        return;
    xcb_connection_t *xcb = m_connection->xcb();
    m_connection->dropEvents();
    m_composited = m_connection->hasCompositingManager();
    if (m_connection->hasExtension(xcb_damage_id)) {
        xcb_discard_reply(xcb, xcb_damage_query_version(xcb, 1, 1).sequence);
        m_damage = xcb_generate_id(xcb);
        xcb_damage_create(xcb, m_damage, m_connection->root(), XCB_DAMAGE_REPORT_LEVEL_NON_EMPTY);
        xcb_flush(xcb);
    }
    m_firstAsked.start();
    m_timer.start();
}

void DrawingPause::look()
{
    xcb_connection_t *xcb = m_connection->xcb();
    if (m_damage != XCB_NONE) {
        const auto *extension = xcb_get_extension_data(xcb, &xcb_damage_id);
        const auto drawn = m_connection->takeEvent(static_cast<uint8_t>(extension->first_event + XCB_DAMAGE_NOTIFY));
        if (drawn)
            m_lastDrawn.start();
        // Emptied, it tells of the next drawing; each time, as a capture meanwhile drops what it has told.
        xcb_damage_subtract(xcb, m_damage, XCB_NONE, XCB_NONE);
        xcb_flush(xcb);
    }
    if (isOver())
        end();
}

bool DrawingPause::isOver() const
{
    if (m_firstAsked.elapsed() >= longest)
        return true;
    if (m_lastDrawn.isValid() && m_lastDrawn.elapsed() < pause)
        return false;
    // What the manager drew within the first frame may still have been the one before.
    const bool managerHasDrawn = m_composited && m_lastDrawn.isValid();
    return m_lastAsked.elapsed() >= (managerHasDrawn ? oneFrame : timeToBegin);
}

void DrawingPause::end()
{
    m_timer.stop();
    if (m_damage != XCB_NONE)
        xcb_damage_destroy(m_connection->xcb(), std::exchange(m_damage, xcb_damage_damage_t(XCB_NONE)));
    xcb_flush(m_connection->xcb());
    // A called-back one may wait again.
    for (const auto &then : std::exchange(m_waiting, {}))
        then();
}

} // namespace tessaly
