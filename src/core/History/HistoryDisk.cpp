// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryDisk.h"

#include "core/Imaging/PixelMemory.h"

#include <QCoreApplication>
#include <QEvent>

namespace tessaly {

/// After this without changes the index is brought up to date, and memory given back.
static constexpr std::chrono::milliseconds quietTime { 2000 };

HistoryDisk::HistoryDisk(HistoryStore files) :
    m_files(std::move(files)),
    m_queueSide { .keeper = HistoryKeeper(m_files), .loaded = {}, .isLoaded = false }
{
    m_quiet.setSingleShot(true);
    const auto tidyUp = [](HistoryKeeper &keeper) {
        keeper.settle();
        PixelMemory::giveBack();
    };
    connect(&m_quiet, &QTimer::timeout, this, [this, tidyUp] { queue(tidyUp, [] {}); });
}

HistoryDisk::~HistoryDisk() = default;

void HistoryDisk::post(Job job, Answer answered)
{
    queue(std::move(job), std::move(answered));
    m_quiet.start(quietTime);
}

void HistoryDisk::queue(Job job, Answer answered)
{
    ++m_unanswered;
    m_queue.post([this, job = std::move(job), answered = std::move(answered)]() mutable {
        const State state = perform(job);
        job = nullptr; // a picture may go with it
        const auto answer = [this, state, answered = std::move(answered)] {
            --m_unanswered;
            take(state);
            answered();
        };
        QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
    });
}

HistoryDisk::State HistoryDisk::perform(const Job &job)
{
    HistoryKeeper &keeper = m_queueSide.keeper;
    if (std::exchange(m_queueSide.isLoaded, true))
        keeper.role(); // the one that had it may have gone
    else
        m_queueSide.loaded = keeper.load();
    job(keeper);
    // Compared here, for the texts of a thousand entries are long; quickly when nobody has touched the list.
    const bool entriesAreNew = m_queueSide.entries != keeper.entries();
    m_queueSide.entries = keeper.entries();
    return { m_queueSide.entries, entriesAreNew, keeper.role(), std::exchange(m_queueSide.loaded, {}),
        keeper.mailboxPath() };
}

void HistoryDisk::load()
{
    post([side = &m_queueSide](HistoryKeeper &keeper) {
        if (!side->loaded) // it has not been read just now
            side->loaded = keeper.load();
    });
}

void HistoryDisk::finish()
{
    while (m_unanswered > 0) {
        m_queue.drain();
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
        if (m_unanswered == 0 && m_quiet.isActive()) {
            m_quiet.stop();
            queue(&HistoryKeeper::settle, [] {});
        }
    }
}

void HistoryDisk::take(const State &state)
{
    const bool roleIsNew = std::exchange(m_role, state.role) != state.role;
    m_entries = state.entries;
    watch(state);
    if (roleIsNew)
        Q_EMIT roleChanged();
    if (state.entriesAreNew)
        Q_EMIT entriesChanged();
    if (!state.loaded)
        return;
    m_isLoaded = true;
    Q_EMIT loaded(*state.loaded);
}

/// The keeper watches for what guests leave, a guest for what the keeper writes.
void HistoryDisk::watch(const State &state)
{
    const QString folder = state.role == HistoryKeeper::Role::Keeper ? state.mailbox : m_files.directory;
    if (m_watcher && m_watcher->directories() == QStringList(folder))
        return;
    m_watcher = std::make_unique<QFileSystemWatcher>();
    connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, this, &HistoryDisk::lookAround);
    // A folder that is not there yet is tried again after the next job.
    if (folder.isEmpty() || !m_watcher->addPath(folder))
        m_watcher.reset();
    else if (state.role == HistoryKeeper::Role::Keeper)
        lookAround(); // something may have come before
}

void HistoryDisk::lookAround()
{
    if (std::exchange(m_isLooking, true))
        return;
    const auto taken = std::make_shared<bool>(false);
    const auto look = [taken](HistoryKeeper &keeper) {
        if (keeper.role() == HistoryKeeper::Role::Keeper)
            *taken = keeper.takeRequests();
        else
            keeper.load();
    };
    post(look, [this, taken] {
        m_isLooking = false;
        if (*taken)
            Q_EMIT requestsTaken();
    });
}

} // namespace tessaly
