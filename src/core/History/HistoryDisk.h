// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/SerialQueue.h"
#include "core/History/HistoryKeeper.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>

namespace tessaly {

/// The history's folder on a thread of its own. Everything here is called, and answers, on the main thread; only the
/// jobs run on the other.
class HistoryDisk : public QObject {
    Q_OBJECT

public:
    explicit HistoryDisk(HistoryStore files);
    /// Does what has been posted. What was not answered stays so.
    ~HistoryDisk() override;

    /// A job owns, or shares, all that it touches. The folder has been read before the first one.
    using Job = std::function<void(HistoryKeeper &keeper)>;
    using Answer = std::function<void()>;

    /// Does the job after those before it, then, with entries() as the job left them, calls `answered`.
    void post(
        Job job, Answer answered = [] {});

    /// Reads the folder, also again; loaded() comes.
    void load();

    /// Waits until everything is done and answered, also what the answers post.
    void finish();
    /// Waits until what was posted is done; any thread.
    void waitForJobs() { m_queue.drain(); }
    bool isIdle() const { return m_unanswered == 0; }

    /// After the last answered job, sorted.
    const QList<HistoryEntry> &entries() const { return m_entries; }
    bool isLoaded() const { return m_isLoaded; }
    /// Whether this process keeps the folder, as far as is known; the first job tells.
    HistoryKeeper::Role role() const { return m_role; }

Q_SIGNALS:
    void loaded(const HistoryStore::Loaded &loaded);
    void entriesChanged();
    void roleChanged();
    /// Other processes have left changes, which are made now.
    void requestsTaken();

private:
    /// What lives on the queue's thread.
    struct QueueSide {
        HistoryKeeper keeper;
        std::optional<HistoryStore::Loaded> loaded; ///< not yet told
        QList<HistoryEntry> entries {}; ///< that were told last
        bool isLoaded = false;
    };
    /// What a job has left.
    struct State {
        QList<HistoryEntry> entries;
        bool entriesAreNew;
        HistoryKeeper::Role role;
        std::optional<HistoryStore::Loaded> loaded;
        QString mailbox;
    };

    void queue(Job job, Answer answered);
    State perform(const Job &job);
    void take(const State &state);
    void watch(const State &state);
    void lookAround();

    HistoryStore m_files;
    QList<HistoryEntry> m_entries;
    HistoryKeeper::Role m_role = HistoryKeeper::Role::Keeper;
    std::unique_ptr<QFileSystemWatcher> m_watcher; ///< made when there is something to watch
    QTimer m_quiet; ///< runs out when nothing has been done for a while
    bool m_isLoaded = false;
    bool m_isLooking = false;
    int m_unanswered = 0;
    QueueSide m_queueSide;
    SerialQueue m_queue; ///< the last, since its jobs use the others
};

} // namespace tessaly
