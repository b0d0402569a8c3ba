// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/RecognitionServer.h"

#include "core/Imaging/PixelMemory.h"

#include <QCoreApplication>

#include <utility>

namespace tessaly {

using namespace WorkerMessages;

RecognitionServer::RecognitionServer(int socket) : m_socket(socket), m_thread([this] { work(); }) { }

RecognitionServer::~RecognitionServer()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
        for (const auto &task : m_tasks)
            task->cancellation.cancel();
    }
    m_changed.notify_all();
    m_thread.join();
}

bool RecognitionServer::run()
{
    QByteArray received;
    Descriptor picture;
    while (receive(m_socket, received, &picture)) {
        while (true) {
            auto frame = takeFrame(received, maximumOrderLength);
            if (!frame)
                return false;
            if (!*frame)
                break;
            const auto order = decodedOrder(**frame);
            if (!order)
                return false;
            // An order before it may have come with the same bytes.
            const bool isForPicture = order->kind == Kind::Recognize;
            take(*order, isForPicture ? std::exchange(picture, {}) : Descriptor());
        }
    }
    return received.isEmpty();
}

void RecognitionServer::take(const Order &order, Descriptor picture)
{
    const std::lock_guard lock(m_mutex);
    if (order.kind == Kind::Cancel) {
        for (const auto &task : m_tasks) {
            if (task->order.number == order.number)
                task->cancellation.cancel();
        }
        return;
    }
    auto task = std::make_shared<Task>(Task { order, {}, {} });
    if (order.kind == Kind::Recognize)
        task->picture = mappedPicture(picture, order.pixelSize);
    m_tasks.push_back(std::move(task));
    m_changed.notify_all();
}

void RecognitionServer::work()
{
    std::unique_lock lock(m_mutex);
    while (true) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_tasks.empty(); });
        if (m_isEnding)
            return;
        const auto task = m_tasks.front();
        lock.unlock();
        perform(*task);
        PixelMemory::giveBack(); // half of what the program has, after a large screen
        lock.lock();
        m_tasks.pop_front();
    }
}

void RecognitionServer::perform(Task &task)
{
    // A thread that has lowered its priority cannot raise it again: work in the background has one of its own.
    if (task.order.urgency == TextRecognizer::Urgency::Background) {
        std::thread([this, &task] {
            RecognitionEngine::lowerPriority();
            send(m_socket, framed(encoded(answerTo(task))));
        }).join();
    } else {
        send(m_socket, framed(encoded(answerTo(task))));
    }
}

Answer RecognitionServer::answerTo(Task &task)
{
    const Order &order = task.order;
    const ReadingModels models { order.models, order.level };
    if (order.kind == Kind::Load) {
        const Outcome loaded = m_engine.load(models);
        return loaded ? Answer { Kind::Finished, order.number }
                      : Answer { Kind::Failed, order.number, loaded.failure().message };
    }
    if (task.picture.isNull()) {
        return { Kind::Failed, order.number,
            QCoreApplication::translate("Recognition", "The picture did not reach text recognition.") };
    }
    auto content = m_engine.read(task.picture, { models, order.codes }, task.cancellation);
    if (task.cancellation.isCancelled())
        return { Kind::Cancelled, order.number };
    if (!content)
        return { Kind::Failed, order.number, content.failure().message };
    return { Kind::Finished, order.number, {}, *std::move(content) };
}

} // namespace tessaly
