// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryStore.h"

/// The user's history as the commands reach it: read freely, and changed by its keeper, here or in a running Tessaly.
namespace tessaly::HistoryAccess {

/// What is printed of an id, and enough to name an entry in practice.
inline constexpr int shortIdLength = 8;

/// The folder in the user's data folder.
HistoryStore files();

/// All entries, the newest first, with what waits for the keeper. A folder that is missing is an empty history.
Result<QList<HistoryEntry>> entries();

/// The one entry whose id begins with `prefix`, dashes and case of letters aside.
Result<HistoryEntry> find(const QString &prefix, const QList<HistoryEntry> &entries);

/// Takes the entries out of the history, for good. What a running Tessaly keeps it will take out.
Outcome remove(const QList<QUuid> &ids);
Outcome removeAll();

} // namespace tessaly::HistoryAccess
