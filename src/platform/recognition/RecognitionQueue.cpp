// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/RecognitionQueue.h"

#include "platform/recognition/GrayPicture.h"
#include "platform/recognition/RecognitionModels.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tessaly {

using namespace WorkerMessages;
using Urgency = TextRecognizer::Urgency;

namespace {

using namespace std::chrono_literals;

// A line is read in some 20 ms, and between two it looks whether it is still wanted.
constexpr auto cancelLimit = 1s;
constexpr auto idleLimit = 60s;

Failure failure(const char *sentence) { return { QCoreApplication::translate("Recognition", sentence) }; }

} // namespace

RecognitionQueue::RecognitionQueue(QString program, QStringList preferredLanguages) :
    m_program(std::move(program)),
    m_preferredLanguages(std::move(preferredLanguages))
{
    m_cancelLimit.setSingleShot(true);
    m_cancelLimit.setInterval(cancelLimit);
    m_cancelLimit.callOnTimeout(this, [this] { workerEnded(); });
    m_idle.setSingleShot(true);
    m_idle.setInterval(idleLimit);
    m_idle.callOnTimeout(this, [this] {
        if (!m_current)
            m_worker.reset();
    });
}

bool RecognitionQueue::isSupported() const
{
    return QFileInfo(m_program).isExecutable() && !RecognitionModels::installed(RecognitionModels::folder()).isEmpty();
}

std::shared_ptr<RecognitionQueue::Job> RecognitionQueue::add(
    TextRecognizer::Request request, TextRecognizer::Finished finished)
{
    const QSize size = request.image.pixelSize();
    const auto job = std::make_shared<Job>(Job { std::move(request), std::move(finished), size });
    m_waiting.push_back(job);
    schedule();
    return job;
}

void RecognitionQueue::cancel(const std::shared_ptr<Job> &job)
{
    job->isWanted = false;
    std::erase(m_waiting, job);
    if (m_current == job && m_phase == Phase::Reading)
        interrupt();
    else if (m_current == job && m_phase == Phase::Preparing)
        giveUp();
}

void RecognitionQueue::prewarm()
{
    const QStringList names = models();
    if (!m_current && !names.isEmpty() && startWorker())
        m_worker->send({ .kind = Kind::Load, .models = names, .urgency = Urgency::Background });
}

void RecognitionQueue::schedule()
{
    if (m_current)
        makeRoom();
    if (!m_current && !m_waiting.empty())
        begin();
}

/// Lets what the user waits for go before what is done in the background.
void RecognitionQueue::makeRoom()
{
    const bool userWaits
        = std::ranges::any_of(m_waiting, [](const auto &job) { return job->request.urgency == Urgency::User; });
    if (!userWaits || m_current->request.urgency == Urgency::User)
        return;
    if (m_phase == Phase::Reading) {
        interrupt();
    } else if (m_phase == Phase::Preparing) {
        m_waiting.push_front(std::exchange(m_current, nullptr));
        ++m_number;
    }
}

void RecognitionQueue::begin()
{
    auto next = std::ranges::find_if(m_waiting, [](const auto &job) { return job->request.urgency == Urgency::User; });
    if (next == m_waiting.end())
        next = m_waiting.begin();
    m_current = *next;
    m_waiting.erase(next);
    m_phase = Phase::Preparing;
    ++m_number;
    m_idle.stop();
    prepare();
}

/// Makes the gray picture in sealed memory on another thread, once a job: a large screen takes 20 ms.
void RecognitionQueue::prepare()
{
    const auto send = [this, number = m_number](const std::shared_ptr<Descriptor> &picture) {
        const auto sendIfCurrent = [this, number, picture] {
            if (number != m_number || !m_current)
                return;
            m_current->picture = picture;
            m_current->request.image.pixels = {};
            sendCurrent();
        };
        QMetaObject::invokeMethod(this, sendIfCurrent, Qt::QueuedConnection);
    };
    if (m_current->picture)
        return send(m_current->picture);
    m_preparation.post([send, pixels = m_current->request.image.pixels] {
        send(std::make_shared<Descriptor>(sealedPicture(grayPicture(pixels))));
    });
}

void RecognitionQueue::sendCurrent()
{
    const TextRecognizer::Request &request = m_current->request;
    const Descriptor &picture = *m_current->picture;
    const QSize size = m_current->size;
    if (size.isEmpty())
        return finish(RecognizedContent());
    if (!picture.isValid() || qint64(size.width()) * size.height() > maximumPixels)
        return finish(failure(QT_TRANSLATE_NOOP("Recognition", "The picture is too large for text recognition.")));
    if (const Outcome started = startWorker(); !started)
        return finish(started.failure());
    const QStringList names = models();
    if (names.isEmpty())
        return finish(failure(QT_TRANSLATE_NOOP("Recognition",
            "No language data for text recognition is installed; the package tesseract-ocr-eng has those for "
            "English.")));
    const Order order { Kind::Recognize, m_number, names, request.level, request.codes, request.urgency, size };
    m_phase = Phase::Reading;
    if (!m_worker->send(order, picture))
        workerEnded();
}

void RecognitionQueue::interrupt()
{
    m_phase = Phase::Cancelling;
    m_cancelLimit.start();
    if (!m_worker->send({ .kind = Kind::Cancel, .number = m_number }))
        workerEnded();
}

void RecognitionQueue::takeAnswer(Answer answer)
{
    if (!m_current || answer.number != m_number)
        return;
    if (answer.kind == Kind::Finished)
        return finish(std::move(answer.content));
    if (answer.kind == Kind::Failed)
        return finish(Failure { answer.message });
    giveUp();
}

/// Ends the current attempt without a result. A job that is still wanted was interrupted and waits again.
void RecognitionQueue::giveUp()
{
    m_cancelLimit.stop();
    ++m_number;
    const auto job = std::exchange(m_current, nullptr);
    if (job->isWanted)
        m_waiting.push_front(job);
    m_idle.start();
    schedule();
}

/// The worker crashed, or does not answer: the next recognition starts another.
void RecognitionQueue::workerEnded()
{
    m_worker.reset();
    if (m_current && m_phase == Phase::Reading)
        finish(failure(QT_TRANSLATE_NOOP("Recognition", "Text recognition ended unexpectedly on this picture.")));
    else if (m_current && m_phase == Phase::Cancelling)
        giveUp();
}

void RecognitionQueue::finish(Result<RecognizedContent> result)
{
    m_cancelLimit.stop();
    ++m_number;
    const auto job = std::exchange(m_current, nullptr);
    job->picture.reset(); // whoever has the task may keep it for long
    m_idle.start();
    schedule();
    // From the event loop: what is called may destroy this object, and the worker that is being listened to.
    QMetaObject::invokeMethod(
        this,
        [job, result = std::move(result)]() mutable {
            if (job->isWanted)
                job->finished(std::move(result));
        },
        Qt::QueuedConnection);
}

Outcome RecognitionQueue::startWorker()
{
    if (m_worker)
        return Done {};
    if (m_program.isEmpty())
        return failure(QT_TRANSLATE_NOOP(
            "Recognition", "Text cannot be recognized because the program tessaly-recognition is not installed."));
    auto started = WorkerProcess::start(m_program, RecognitionModels::folder(),
        { [this](Answer answer) { takeAnswer(std::move(answer)); }, [this] { workerEnded(); } });
    if (!started)
        return started.failure();
    m_worker = *std::move(started);
    m_idle.start();
    return Done {};
}

QStringList RecognitionQueue::models()
{
    const auto choice
        = RecognitionModels::chosen(m_preferredLanguages, RecognitionModels::installed(RecognitionModels::folder()));
    if (!choice.notice.isEmpty() && !m_hasNotified) {
        m_hasNotified = true;
        QMetaObject::invokeMethod(
            this, [this, sentence = choice.notice] { notice(sentence); }, Qt::QueuedConnection);
    }
    return choice.models;
}

} // namespace tessaly
