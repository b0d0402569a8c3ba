// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryEntry.h"

#include <QSet>

namespace tessaly {
class Settings;
}

/// Which captures the history gives up by itself.
namespace tessaly::HistoryPruning {

/// The most captures that are kept, besides older ones that are open.
inline constexpr int maxEntries = 1000;

/// A time to keep captures for that the settings offer.
struct Retention {
    int days; ///< 0: no limit
    const char *title; ///< translated in the context "HistoryPruning"
};
inline constexpr Retention retentions[] = {
    { 7, QT_TRANSLATE_NOOP("HistoryPruning", "1 week") },
    { 30, QT_TRANSLATE_NOOP("HistoryPruning", "1 month") },
    { 90, QT_TRANSLATE_NOOP("HistoryPruning", "3 months") },
    { 365, QT_TRANSLATE_NOOP("HistoryPruning", "1 year") },
    { 0, QT_TRANSLATE_NOOP("HistoryPruning", "Forever") },
};

/// What a stored number of days is called; any that is not offered is "Forever".
QString retentionTitle(int days);

/// For how many whole days the user keeps captures; 0: no limit.
int retentionDays(const Settings &settings);

/// Those that have expired: older than the retention (below 1: none), or beyond the newest maxEntries, and not open in
/// an editor.
QList<QUuid> expired(
    const QList<HistoryEntry> &entries, int retentionDays, const QDateTime &now, const QSet<QUuid> &open);

} // namespace tessaly::HistoryPruning
