// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

namespace tessaly {

/// A lock on a folder, by a hidden file in it. The system gives it back when its holder ends, however that ends. Two
/// objects exclude each other also within one process.
class HistoryLock {
public:
    explicit HistoryLock(QString folder);
    ~HistoryLock() { release(); }
    HistoryLock(const HistoryLock &) = delete;
    HistoryLock &operator=(const HistoryLock &) = delete;

    /// Takes the lock for oneself unless somebody else has it; false as well when the folder is missing or may not be
    /// written. A file system that has no locks gives it to everyone.
    bool tryTake();
    /// Waits for a share of the lock: several may have one, but nobody the whole.
    Outcome share();
    void release();

    /// Whether the lock is held, and on the folder that is still there.
    bool isHeld() const;

private:
    int open() const;

    QString m_path;
    int m_file = -1;
};

} // namespace tessaly
