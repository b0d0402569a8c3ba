// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace tessaly {

/// A thread of its own that does one job after the other, in the order in which they are posted. It starts with the
/// first one.
class SerialQueue {
public:
    SerialQueue() = default;
    /// Does what has been posted, then ends.
    ~SerialQueue();
    SerialQueue(const SerialQueue &) = delete;
    SerialQueue &operator=(const SerialQueue &) = delete;

    /// Any thread. The job owns, or shares, all that it touches.
    void post(std::function<void()> job);

    /// Waits until all that was posted before is done. Not from a job.
    void drain();

private:
    void run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::function<void()>> m_jobs;
    bool m_isWorking = false;
    bool m_isEnding = false;
    std::thread m_thread; ///< none before the first job; the last, since it uses the others
};

} // namespace tessaly
