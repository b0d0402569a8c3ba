// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <limits>
#include <optional>

namespace tessaly::test {

/// What the workers of a kill test said before they died, and what may be on the disk after it.
///
/// An operation takes effect at one moment between its begin and its end; one that has not ended may have taken effect
/// or not. So what is there must come from an operation that no other, which ended well, has followed entirely.
class KillJournal {
public:
    static constexpr int entryCount = 12;

    enum class What : quint8 { Put, Update, Remove };
    enum class Phase : quint8 { Begin, Done, Failed };
    /// As it goes through the pipe, in one piece.
    struct Event {
        quint8 worker;
        Phase phase;
        What what;
        quint32 entries; ///< one bit each
        qint32 version; ///< of picture or text
    };

    struct State {
        bool isThere = false;
        int picture = -1;
        QString text;
    };

    static QString textOf(What what, int version)
    {
        return (what == What::Put ? QStringLiteral("put %1") : QStringLiteral("update %1")).arg(version);
    }

    void add(const Event &event)
    {
        const int moment = m_moment++;
        if (event.phase == Phase::Begin) {
            m_open[event.worker] = m_operations.size();
            m_operations += Operation { event, moment };
        } else if (event.phase == Phase::Done) {
            m_operations[m_open[event.worker]].done = moment;
        } else {
            m_failed += event.what != What::Update; // the entry may have been removed by the other worker
        }
    }

    int failedOperations() const { return m_failed; }
    int doneOperations() const
    {
        return static_cast<int>(
            std::ranges::count_if(m_operations, [](const Operation &one) { return one.done != never; }));
    }

    /// Empty if the entry may be in this state; else what may be.
    QString contradiction(int entry, const State &before, const State &found) const
    {
        QStringList pictures, texts;
        for (const Operation *one : possible(entry, false))
            pictures += one
                ? one->event.what == What::Put ? QString::number(one->event.version) : QStringLiteral("none")
                : before.isThere ? QString::number(before.picture)
                                 : QStringLiteral("none");
        for (const Operation *one : possible(entry, true)) {
            if (!one || one->event.what != What::Remove)
                texts += one ? textOf(one->event.what, one->event.version) : before.text;
        }
        const QString picture = found.isThere ? QString::number(found.picture) : QStringLiteral("none");
        if (pictures.contains(picture) && (!found.isThere || texts.contains(found.text)))
            return {};
        return QStringLiteral("entry %1 has picture %2 and “%3”, not one of %4 and “%5”")
            .arg(entry)
            .arg(picture, found.text, pictures.join(u' '), texts.join(u'|'));
    }

private:
    static constexpr int never = std::numeric_limits<int>::max();

    struct Operation {
        Event event;
        int begun;
        int done = never;
    };

    /// Those that may have been the last; null stands for the state before all.
    QList<const Operation *> possible(int entry, bool ofText) const
    {
        QList<const Operation *> relevant, found;
        for (const Operation &one : m_operations) {
            if ((one.event.entries >> entry & 1) && (ofText || one.event.what != What::Update))
                relevant += &one;
        }
        const auto isFollowed = [&](int done) {
            return std::ranges::any_of(
                relevant, [&](const Operation *other) { return other->done != never && other->begun > done; });
        };
        if (!isFollowed(-1))
            found += nullptr;
        for (const Operation *one : std::as_const(relevant)) {
            if (!isFollowed(one->done))
                found += one;
        }
        return found;
    }

    QList<Operation> m_operations;
    qsizetype m_open[2] {};
    int m_moment = 0;
    int m_failed = 0;
};

} // namespace tessaly::test
