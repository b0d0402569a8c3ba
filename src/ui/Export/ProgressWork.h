// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"

#include <list>
#include <thread>

namespace tessaly {

/// Long work behind the windows: a thread does it while events are handled, input is held back, and after 300 ms a
/// panel with the title, a moving bar and "Cancel" lies over the active window. Main thread only.
class ProgressWork final : public LongWork {
public:
    ProgressWork();
    /// Waits for cancelled work that has not noticed yet.
    ~ProgressWork() override;

    bool run(const QString &title, Body body) override;
    void complete(const QString &title, Body body) override;

private:
    enum class Cancelling { Offered, Impossible };
    class Job;
    bool runWith(const QString &title, Body body, Cancelling cancelling);
    struct Worker {
        std::shared_ptr<Job> job;
        std::thread thread;
    };
    void joinFinished();

    std::list<Worker> m_workers;
};

} // namespace tessaly
