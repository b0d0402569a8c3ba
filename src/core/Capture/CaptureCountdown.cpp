// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/CaptureCountdown.h"

namespace tessaly {

CountdownView::~CountdownView() = default;

CaptureCountdown::CaptureCountdown(CountdownView &view) : CaptureCountdown(view, Pace {}) { }

CaptureCountdown::CaptureCountdown(CountdownView &view, Pace pace) : m_view(view), m_pace(pace)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &CaptureCountdown::tick);
}

CaptureCountdown::~CaptureCountdown() { tearDown(); }

void CaptureCountdown::start(int seconds, std::function<void()> onDone, std::function<void()> onCancel)
{
    tearDown();
    if (seconds < 1)
        return onDone();
    m_remaining = seconds;
    m_onDone = std::move(onDone);
    m_onCancel = std::move(onCancel);
    m_view.show(seconds, [this] { cancel(); });
    m_timer.start(m_pace.second);
}

void CaptureCountdown::cancel()
{
    if (!isRunning())
        return;
    const auto onCancel = std::move(m_onCancel);
    tearDown();
    onCancel();
}

void CaptureCountdown::tick()
{
    if (m_remaining == 0) {
        const auto onDone = std::move(m_onDone);
        tearDown();
        onDone();
    } else if (--m_remaining == 0) {
        m_view.hide();
        m_timer.start(m_pace.beforeDone);
    } else {
        m_view.setNumber(m_remaining);
    }
}

void CaptureCountdown::tearDown()
{
    if (m_remaining > 0)
        m_view.hide();
    m_remaining = 0;
    m_timer.stop();
    m_onDone = nullptr;
    m_onCancel = nullptr;
}

} // namespace tessaly
