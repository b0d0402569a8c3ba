// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryLock.h"
#include "core/History/HistoryMailbox.h"
#include "core/History/HistoryStore.h"

#include <chrono>
#include <functional>

namespace tessaly {

/// Changes the history on the disk: directly as the one process that keeps it, which holds a lock on the folder, or as
/// a guest, by leaving the change in a mailbox in the folder for the keeper to make. A guest becomes the keeper by
/// itself once the lock is free. A change that succeeded is on the disk, whole, and survives the end of any process.
///
/// The index is written at most once a second: it may be behind until settle(), load() or the keeper's end. Whoever
/// reads it meanwhile, or after a kill, knows which packages it does not know.
///
/// All calls from one thread at a time.
class HistoryKeeper {
public:
    enum class Role { Keeper, Guest };

    explicit HistoryKeeper(HistoryStore files);
    /// Writes an index that is behind, and gives up the lock.
    ~HistoryKeeper();
    HistoryKeeper(const HistoryKeeper &) = delete;
    HistoryKeeper &operator=(const HistoryKeeper &) = delete;

    /// Makes the folder when it is missing, and takes the lock when it is free; a process that ends, however it ends,
    /// frees it. A folder that cannot be made or written has guests only, whose changes fail with the reason.
    Role role();

    /// Reads the folder. The keeper also clears what a killed process left behind, brings the index into agreement with
    /// the packages and makes the changes that wait in the mailbox. A folder that is missing is an empty history.
    HistoryStore::Loaded load();

    /// The entries after the last load or change, sorted. A guest sees its own changes of entries at once, those of the
    /// keeper at the next load().
    const QList<HistoryEntry> &entries() const { return m_entries; }

    /// Adds an entry, or replaces that of the same id, with its package.
    Outcome put(const TessalyDocument::Package &package, const HistoryEntry &entry);
    /// Changes what is known of an entry that is there.
    Outcome update(const HistoryEntry &entry);
    /// Those that are there; the others are no failure.
    Outcome remove(const QList<QUuid> &ids);
    Outcome removeAll();

    /// Makes the changes that guests have left. True when there were some. Nothing to do for a guest.
    bool takeRequests();
    /// The folder that changes when guests leave something, to be watched; it is there once someone was the keeper.
    QString mailboxPath() const;

    const HistoryStore &files() const { return m_files; }

    /// Writes the index if it is behind: for a quiet moment.
    void settle();

private:
    bool isKeeper();
    HistoryStore::Loaded loadAsKeeper();
    HistoryStore::Loaded loadAsGuest();
    Outcome change(const HistoryMailbox::Message &message, const std::function<Outcome()> &directly,
        const std::function<Outcome()> &byMail);
    Outcome perform(const HistoryMailbox::Message &message);
    Outcome removeAllPackages();
    void readAgain();
    void takeWaiting();
    void dropAll(const QList<HistoryMailbox::Message> &messages);
    void indexIsBehind();

    HistoryStore m_files;
    QList<HistoryEntry> m_entries;
    HistoryLock m_lock;
    HistoryMailbox m_mailbox;
    bool m_isIndexBehind = false;
    bool m_hasTakenRequests = false;
    std::chrono::steady_clock::time_point m_indexWritten {};
};

} // namespace tessaly
