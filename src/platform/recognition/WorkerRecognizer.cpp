// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/WorkerRecognizer.h"

#include "platform/recognition/RecognitionQueue.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QPointer>

namespace tessaly {

struct WorkerRecognizer::Implementation {
    RecognitionQueue queue;
};

namespace {

class QueuedTask final : public RecognitionTask {
public:
    QueuedTask(RecognitionQueue &queue, std::shared_ptr<RecognitionQueue::Job> job) :
        m_queue(&queue),
        m_job(std::move(job))
    {
    }
    ~QueuedTask() override
    {
        if (m_queue)
            m_queue->cancel(m_job);
    }

private:
    QPointer<RecognitionQueue> m_queue;
    std::shared_ptr<RecognitionQueue::Job> m_job;
};

} // namespace

WorkerRecognizer::WorkerRecognizer(Options options) :
    m_implementation(new Implementation { { std::move(options.program), std::move(options.preferredLanguages) } })
{
    m_implementation->queue.notice = [this](const QString &sentence) { notice(sentence); };
}

WorkerRecognizer::~WorkerRecognizer() = default;

QString WorkerRecognizer::defaultProgram()
{
    const QString folder = QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
    for (const char *place : { "/tessaly-recognition", "/../libexec/tessaly/tessaly-recognition" }) {
        const QFileInfo program(folder + QLatin1StringView(place));
        if (program.isExecutable())
            return program.absoluteFilePath();
    }
    return {};
}

QStringList WorkerRecognizer::systemLanguages()
{
    QStringList languages = QLocale::system().uiLanguages();
    languages.removeAll(QStringLiteral("C"));
    return languages;
}

std::unique_ptr<RecognitionTask> WorkerRecognizer::recognize(Request request, Finished finished)
{
    RecognitionQueue &queue = m_implementation->queue;
    return std::make_unique<QueuedTask>(queue, queue.add(std::move(request), std::move(finished)));
}

void WorkerRecognizer::prewarm() { m_implementation->queue.prewarm(); }

bool WorkerRecognizer::isSupported() const { return m_implementation->queue.isSupported(); }

} // namespace tessaly
