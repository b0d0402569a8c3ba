// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Clock.h"
#include "core/Desktop/Alerts.h"
#include "core/Desktop/Clipboard.h"
#include "core/Desktop/OpenPanels.h"
#include "core/Desktop/Sharing.h"
#include "core/Export/SavePanels.h"

/// Stand-ins for what a desktop gives, which remember what they were told and answer as the test says.
namespace tessaly::test {

class FakeAlerts final : public Alerts {
public:
    QStringList shown; ///< messages, questions included
    QStringList texts; ///< the informative text of each
    int answer = 0; ///< index given to the next questions

    void warn(const QString &message, const QString &informativeText) override { add(message, informativeText); }
    void inform(const QString &message, const QString &informativeText) override { add(message, informativeText); }
    int ask(const Question &question) override
    {
        add(question.message, question.informativeText);
        return answer;
    }

private:
    void add(const QString &message, const QString &text)
    {
        shown += message;
        texts += text;
    }
};

class FakeClipboard final : public Clipboard {
public:
    std::unique_ptr<ClipboardOffer> content;

    void offer(std::unique_ptr<ClipboardOffer> offer) override
    {
        content = std::move(offer);
        Q_EMIT changed();
    }
    QStringList types() const override { return content ? content->types() : QStringList(); }
    QByteArray data(const QString &type) const override { return content ? content->data(type) : QByteArray(); }
};

/// Puts fixed bytes of one type on a clipboard.
class FixedOffer final : public ClipboardOffer {
public:
    FixedOffer(QString type, QByteArray bytes) : m_type(std::move(type)), m_bytes(std::move(bytes)) { }
    QStringList types() const override { return { m_type }; }
    QByteArray data(const QString &type) override { return type == m_type ? m_bytes : QByteArray(); }

private:
    QString m_type;
    QByteArray m_bytes;
};

class FakeSharing final : public Sharing {
public:
    bool available = true;
    QStringList shared;

    bool isAvailable() const override { return available; }
    Outcome share(const QString &path) override
    {
        shared += path;
        return Done {};
    }
};

class FakeSavePanels final : public SavePanels {
public:
    std::optional<ImageChoice> image; ///< the next answers
    std::optional<QString> document;
    QList<ImageRequest> imageRequests;
    QStringList documentNames;
    std::function<void()> meanwhile = [] {}; ///< what happens while the panel for images is open

    std::optional<ImageChoice> chooseImage(const ImageRequest &request) override
    {
        imageRequests += request;
        meanwhile();
        return image;
    }
    std::optional<QString> chooseDocument(const QString &fileName, const QString &) override
    {
        documentNames += fileName;
        return document;
    }
};

class FakeOpenPanels final : public OpenPanels {
public:
    std::optional<QStringList> images; ///< the next answer
    std::optional<QString> folder; ///< the same
    QStringList asked; ///< where each question for a folder began

    std::optional<QStringList> chooseImages() override { return images; }
    std::optional<QString> chooseFolder(const QString &, const QString &, const QString &begin) override
    {
        asked += begin;
        return folder;
    }
};

/// A clock that stands until it is moved.
class FakeClock final : public Clock {
public:
    QDateTime time { QDate(2024, 5, 1), QTime(14, 3, 22) };

    QDateTime now() const override { return time; }
};

} // namespace tessaly::test
