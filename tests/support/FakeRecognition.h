// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/Links.h"
#include "core/Desktop/Toasts.h"
#include "core/Text/TextRecognizer.h"

#include <QList>

/// Stand-ins for recognition and for what tells its results.
namespace tessaly::test {

/// Keeps the requests until the test answers them.
class FakeRecognizer final : public TextRecognizer {
public:
    struct Pending {
        Request request;
        Finished finished;
    };
    QList<std::shared_ptr<Pending>> pending; ///< those that were not cancelled or answered, in their order
    int cancelled = 0;
    int prewarmed = 0;
    bool supported = true;

    std::unique_ptr<RecognitionTask> recognize(Request request, Finished finished) override
    {
        pending += std::make_shared<Pending>(Pending { std::move(request), std::move(finished) });
        return std::make_unique<Task>(*this, pending.last());
    }
    void prewarm() override { ++prewarmed; }
    bool isSupported() const override { return supported; }

    /// Answers the oldest request.
    void answer(Result<RecognizedContent> result)
    {
        const auto first = pending.takeFirst();
        first->finished(std::move(result));
    }

private:
    class Task final : public RecognitionTask {
    public:
        Task(FakeRecognizer &owner, std::shared_ptr<Pending> mine) : m_owner(owner), m_mine(std::move(mine)) { }
        ~Task() override
        {
            if (m_owner.pending.removeOne(m_mine))
                ++m_owner.cancelled;
        }

    private:
        FakeRecognizer &m_owner;
        std::shared_ptr<Pending> m_mine;
    };
};

class FakeToasts final : public Toasts {
public:
    QStringList shown; ///< messages; a link as "message|host"
    std::chrono::milliseconds lastDuration {};
    std::function<void()> openLink;

    void show(const QString &message, std::chrono::milliseconds duration) override
    {
        shown += message;
        lastDuration = duration;
    }
    void showLink(const QString &message, const QString &host, std::function<void()> onOpen) override
    {
        shown += message + u'|' + host;
        openLink = std::move(onOpen);
    }
};

class FakeLinks final : public Links {
public:
    QList<QUrl> opened;
    QStringList revealed;

    bool open(const QUrl &url) override
    {
        opened += url;
        return true;
    }
    bool reveal(const QString &path) override
    {
        revealed += path;
        return true;
    }
};

} // namespace tessaly::test
