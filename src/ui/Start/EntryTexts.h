// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryEntry.h"

/// What a capture of the history is called on the screen, and what is said about all of them.
namespace tessaly::EntryTexts {

/// Its title on one line; "Screenshot" for one without.
QString title(const HistoryEntry &entry);
/// "Today, 14:03": today and yesterday by name, other days as a date.
QString moment(const QDateTime &created, const QDateTime &now);
/// Moment and size in pixels, the full text first, then those to show where there is not enough room for it.
QStringList subtitles(const HistoryEntry &entry, const QDateTime &now);
/// For readers of the screen: title and date in full.
QString spoken(const HistoryEntry &entry);
QString toolTip(const HistoryEntry &entry);

/// How long captures are kept; below one day until they are deleted.
QString retention(double days);

} // namespace tessaly::EntryTexts
