// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/SerialQueue.h"

namespace tessaly {

SerialQueue::~SerialQueue()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void SerialQueue::post(std::function<void()> job)
{
    {
        const std::lock_guard lock(m_mutex);
        m_jobs.push_back(std::move(job));
        if (!m_thread.joinable())
            m_thread = std::thread([this] { run(); });
    }
    m_changed.notify_all();
}

void SerialQueue::drain()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_jobs.empty() && !m_isWorking; });
}

void SerialQueue::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_jobs.empty(); });
        if (m_jobs.empty())
            return;
        auto job = std::move(m_jobs.front());
        m_jobs.pop_front();
        m_isWorking = true;
        lock.unlock();
        job();
        job = nullptr; // what it owned goes before the queue counts as idle
        lock.lock();
        m_isWorking = false;
        m_changed.notify_all();
    }
}

} // namespace tessaly
