// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <atomic>
#include <functional>
#include <memory>

namespace tessaly {

/// Whether the result of some work is still wanted. Copies share one answer; any thread.
class Cancellation {
public:
    void cancel() { m_cancelled->store(true, std::memory_order_relaxed); }
    bool isCancelled() const { return m_cancelled->load(std::memory_order_relaxed); }

private:
    std::shared_ptr<std::atomic<bool>> m_cancelled = std::make_shared<std::atomic<bool>>(false);
};

/// The one door through which long work leaves the main thread.
class LongWork {
public:
    using Body = std::function<void(const Cancellation &)>;

    virtual ~LongWork();

    /// Calls `body` on another thread and returns true when it has returned; meanwhile the windows go on painting, and
    /// after 300 ms the user sees `title` with a way to cancel. False when the user cancelled: `body` may then still
    /// be running, so it must own, or share, all that it touches.
    virtual bool run(const QString &title, Body body) = 0;

    /// The same for work that must come to its end, such as writing a file: the user sees it and cannot cancel it, and
    /// `body` has returned at the end. Without windows it is done at once on the calling thread.
    virtual void complete(const QString &title, Body body);
};

/// Does the work at once on the calling thread: for tests and for programs without windows.
class DirectWork final : public LongWork {
public:
    bool run(const QString &title, Body body) override;
};

} // namespace tessaly
