// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Export/ProgressWork.h"

#include "ui/Export/InputHold.h"
#include "ui/Export/ProgressPanel.h"

#include <QEventLoop>
#include <QTimer>

#include <mutex>

namespace tessaly {

/// What the two threads of one run share.
class ProgressWork::Job {
public:
    explicit Job(Body body) : m_body(std::move(body)) { }

    /// On the worker's thread.
    void work()
    {
        try {
            m_body(m_cancellation);
        } catch (const std::exception &exception) {
            // Out of memory, as a rule. The body's result stays empty, which its caller reports.
            qWarning("Work was given up: %s", exception.what());
        }
        m_body = nullptr; // what it holds may be large, and the job lives on until it is joined
        const std::scoped_lock lock(m_mutex);
        m_finished = true;
        if (m_waiting)
            QMetaObject::invokeMethod(m_waiting, &QEventLoop::quit, Qt::QueuedConnection);
    }

    /// On the main thread: handles events until the work is done or no longer wanted.
    void wait(QEventLoop &loop)
    {
        {
            const std::scoped_lock lock(m_mutex);
            if (m_finished)
                return;
            m_waiting = &loop;
        }
        loop.exec();
        const std::scoped_lock lock(m_mutex);
        m_waiting = nullptr;
    }

    void cancel() { m_cancellation.cancel(); }
    bool isCancelled() const { return m_cancellation.isCancelled(); }
    bool isFinished()
    {
        const std::scoped_lock lock(m_mutex);
        return m_finished;
    }

private:
    Body m_body;
    Cancellation m_cancellation;
    std::mutex m_mutex;
    QEventLoop *m_waiting = nullptr;
    bool m_finished = false;
};

ProgressWork::ProgressWork() = default;

ProgressWork::~ProgressWork()
{
    for (Worker &worker : m_workers)
        worker.thread.join();
}

bool ProgressWork::run(const QString &title, Body body) { return runWith(title, std::move(body), Cancelling::Offered); }

void ProgressWork::complete(const QString &title, Body body)
{
    runWith(title, std::move(body), Cancelling::Impossible);
}

bool ProgressWork::runWith(const QString &title, Body body, Cancelling cancelling)
{
    constexpr std::chrono::milliseconds patience(300);
    joinFinished();
    auto job = std::make_shared<Job>(std::move(body));
    m_workers.push_back({ job, std::thread([job] { job->work(); }) });
    QEventLoop loop;
    std::unique_ptr<ProgressPanel> panel;
    InputHold hold;
    QTimer timer;
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        const auto cancel = [&] {
            job->cancel();
            loop.quit();
        };
        panel = std::make_unique<ProgressPanel>(
            title, cancelling == Cancelling::Offered ? std::function<void()>(cancel) : nullptr);
        hold.setException(panel.get());
        panel->show();
    });
    timer.start(patience);
    job->wait(loop);
    joinFinished();
    return !job->isCancelled();
}

void ProgressWork::joinFinished()
{
    m_workers.remove_if([](Worker &worker) {
        if (!worker.job->isFinished())
            return false;
        worker.thread.join();
        return true;
    });
}

} // namespace tessaly
