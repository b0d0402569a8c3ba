// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryEntry.h"

/// Entries of the history, for programs and for people.
namespace tessaly::HistoryReport {

/// An array of entries with the keys of their own file.
QByteArray json(const QList<HistoryEntry> &entries);

/// A line each: the short id, when it was taken, its size in pixels and its title, in columns. With a query, a line
/// below each shows where its text has one of the words.
QByteArray text(const QList<HistoryEntry> &entries, const QString &query = {});

} // namespace tessaly::HistoryReport
