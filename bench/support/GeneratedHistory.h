// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryStore.h"

namespace tessaly::bench {

/// A history as months of work leave it, the same in every run: captures of windows and screens with the text that was
/// on them, some 3 kB each. The pictures are small, their thumbnails have the size that real ones have.
struct GeneratedHistory {
    /// The newest entry is made at noon of this day, the others in the months before it.
    static QDateTime newest();
    static constexpr int textLength = 3000; ///< characters, of a capture in the middle

    static QList<HistoryEntry> entries(int count);
    /// Writes them with packages and index into the folder, without waiting for the disk. False when that fails.
    static bool write(const HistoryStore &files, const QList<HistoryEntry> &entries);
};

} // namespace tessaly::bench
