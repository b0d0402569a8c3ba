// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryEntry.h"

#include <QHash>

#include <ctime>

namespace tessaly {

/// The index as it was read from a history's folder, to be compared with the packages one by one.
class HistoryIndexFile {
public:
    enum class State { Missing, Usable, Unusable };

    explicit HistoryIndexFile(const QString &folder);
    ~HistoryIndexFile();
    HistoryIndexFile(const HistoryIndexFile &) = delete;
    HistoryIndexFile &operator=(const HistoryIndexFile &) = delete;

    State state() const { return m_state; }

    /// What the index says of the package; once.
    std::optional<HistoryEntry> take(const QUuid &id);
    /// Whether everything in the index was taken, and nothing was in it twice.
    bool isUsedUp() const { return m_entries.isEmpty() && !m_hasDoubles; }

    /// Whether the index was written after the package's "History.json" was put where it is. By the moments that the
    /// file system notes itself, which no copying program sets back; in doubt it is not.
    bool isNewerThanEntryOf(const QUuid &id) const;

private:
    void read(int file);

    int m_folder = -1;
    timespec m_written {};
    State m_state = State::Missing;
    QHash<QUuid, HistoryEntry> m_entries;
    bool m_hasDoubles = false;
};

} // namespace tessaly
