// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/SerialQueue.h"
#include "core/Text/TextRecognizer.h"
#include "platform/recognition/WorkerProcess.h"

#include <QObject>
#include <QTimer>

#include <deque>

namespace tessaly {

/// Gives recognitions to the worker one after the other, the user's first; starts it, restarts it, and ends it when
/// there has been nothing to do for a minute.
class RecognitionQueue final : public QObject {
public:
    struct Job {
        TextRecognizer::Request request; ///< without pixels once `picture` is there: they may be the only copy
        TextRecognizer::Finished finished;
        QSize size {}; ///< in pixels
        std::shared_ptr<WorkerMessages::Descriptor> picture {}; ///< what the worker reads
        bool isWanted = true;
    };

    RecognitionQueue(QString program, QStringList preferredLanguages);

    std::shared_ptr<Job> add(TextRecognizer::Request request, TextRecognizer::Finished finished);
    /// Its `finished` is not called any more.
    void cancel(const std::shared_ptr<Job> &job);
    void prewarm();
    bool isSupported() const;

    std::function<void(const QString &)> notice = [](const QString &) {};

private:
    /// What happens to the current job.
    enum class Phase { Preparing, Reading, Cancelling };

    void schedule();
    void makeRoom();
    void begin();
    void prepare();
    void sendCurrent();
    void interrupt();
    void takeAnswer(WorkerMessages::Answer answer);
    void workerEnded();
    void finish(Result<RecognizedContent> result);
    void giveUp();
    Outcome startWorker();
    QStringList models();

    QString m_program;
    QStringList m_preferredLanguages;
    std::deque<std::shared_ptr<Job>> m_waiting;
    std::shared_ptr<Job> m_current;
    Phase m_phase = Phase::Preparing;
    qint64 m_number = 0; ///< of the current attempt; what belongs to another one is out of date
    std::unique_ptr<WorkerProcess> m_worker;
    QTimer m_cancelLimit, m_idle;
    bool m_hasNotified = false;
    SerialQueue m_preparation; ///< the last, since its jobs use this object
};

} // namespace tessaly
