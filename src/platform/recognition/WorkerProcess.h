// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/recognition/WorkerMessages.h"

#include <QSocketNotifier>

#include <functional>
#include <memory>

#include <sys/types.h>

namespace tessaly {

/// The recognition process, from its start to its end. Main thread only.
class WorkerProcess {
public:
    struct Events {
        std::function<void(WorkerMessages::Answer)> answered;
        /// It ended by itself, or said what cannot be understood. The object may be destroyed from here.
        std::function<void()> ended;
    };

    /// Starts `program` with its end of the connection as standard input. `modelFolder` is where it loads models from.
    static Result<std::unique_ptr<WorkerProcess>> start(
        const QString &program, const QString &modelFolder, Events events);
    /// Ends it at once.
    ~WorkerProcess();

    /// False when it cannot be reached any more.
    bool send(const WorkerMessages::Order &order, const WorkerMessages::Descriptor &picture = {});

private:
    WorkerProcess(WorkerMessages::Descriptor socket, pid_t process, Events events);
    void read();

    WorkerMessages::Descriptor m_socket;
    pid_t m_process;
    Events m_events;
    QByteArray m_received;
    QSocketNotifier m_readable;
};

} // namespace tessaly
