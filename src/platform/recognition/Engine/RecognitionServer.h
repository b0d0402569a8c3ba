// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/recognition/Engine/RecognitionEngine.h"
#include "platform/recognition/WorkerMessages.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace tessaly {

/// The worker's side of the connection: takes orders, reads the pictures one after the other on a thread of its own,
/// and answers each. A cancelled recognition ends soon and is answered, too.
class RecognitionServer {
public:
    explicit RecognitionServer(int socket);
    ~RecognitionServer();

    /// Until the other side is gone (true), or says what cannot be understood (false).
    bool run();

private:
    struct Task {
        WorkerMessages::Order order;
        QImage picture;
        Cancellation cancellation;
    };

    void take(const WorkerMessages::Order &order, WorkerMessages::Descriptor picture);
    void work();
    void perform(Task &task);
    WorkerMessages::Answer answerTo(Task &task);

    int m_socket;
    RecognitionEngine m_engine;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<std::shared_ptr<Task>> m_tasks; ///< the first is being performed
    bool m_isEnding = false;
    std::thread m_thread; ///< the last, since it uses the others
};

} // namespace tessaly
