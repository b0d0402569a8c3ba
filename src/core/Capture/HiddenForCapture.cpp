// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/HiddenForCapture.h"

namespace tessaly {

HiddenForCapture::HiddenForCapture(
    OwnWindows &ownWindows, WindowSource &windows, std::chrono::milliseconds longestWait) :
    m_ownWindows(ownWindows),
    m_windows(windows),
    m_longestWait(longestWait)
{
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
}

void HiddenForCapture::hide()
{
    if (std::exchange(m_hidden, true))
        return;
    m_ids = m_ownWindows.hide();
    m_sinceHidden.start();
}

void HiddenForCapture::restore()
{
    stopWaiting();
    m_ids.clear();
    if (std::exchange(m_hidden, false))
        m_ownWindows.restore();
}

void HiddenForCapture::whenGone(std::chrono::milliseconds least, std::function<void()> then)
{
    stopWaiting();
    if (!hidesAny())
        return then();
    m_then = std::move(then);
    const auto left
        = std::max(std::chrono::milliseconds(0), least - std::chrono::milliseconds(m_sinceHidden.elapsed()));
    m_deadline = QDeadlineTimer(left + m_longestWait, Qt::PreciseTimer);
    if (left.count() > 0)
        m_timer.start(left);
    else
        look();
}

void HiddenForCapture::look()
{
    if (m_windows.showsAny(m_ids) && !m_deadline.hasExpired()) {
        m_timer.start(betweenLooks);
        return;
    }
    const auto then = std::exchange(m_then, nullptr);
    then();
}

void HiddenForCapture::stopWaiting()
{
    m_timer.stop();
    m_then = nullptr;
}

} // namespace tessaly
