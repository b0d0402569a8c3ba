// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryEntry.h"

#include <QHash>
#include <QLocale>

#include <vector>

namespace tessaly {

/// What of an entry is searched.
struct SearchKey {
    QString title;
    QDateTime created;
    std::optional<QString> recognizedText;

    bool operator==(const SearchKey &) const = default;
};

/// Finds entries by words in their title, date and text, whatever the case and the accents. It keeps what it has
/// folded, so that a keystroke costs a walk over memory. Main thread only; what is costly can be prepared on another.
class HistorySearch {
public:
    explicit HistorySearch(const QLocale &locale = QLocale());

    /// The text that the words of a query are looked for in: title, date written out and in numbers, and text, folded,
    /// as UTF-8. Any thread.
    static QByteArray haystack(const SearchKey &key, const QLocale &locale);

    /// Takes over haystacks that were made on another thread, beside those that are there. One that does not belong to
    /// what its entry holds by then is made anew when it is needed.
    void adopt(QHash<QUuid, std::pair<SearchKey, QByteArray>> prepared);

    /// Those of `entries`, in their order, that contain every word of the query; all for a query without words.
    /// `entries` are all that there are: what is kept about others is dropped.
    QList<HistoryEntry> matches(const QString &query, const QList<HistoryEntry> &entries);

private:
    void gather(const QList<HistoryEntry> &entries);
    bool narrows(const QList<QByteArray> &words) const;

    QLocale m_locale;
    QHash<QUuid, std::pair<SearchKey, QByteArray>> m_cache;
    QList<HistoryEntry> m_entries; ///< what the haystacks below belong to; shares the caller's list
    std::vector<QByteArray> m_haystacks; ///< one an entry
    QList<QByteArray> m_words; ///< of the last query over m_entries; none when the next looks at all of them
    std::vector<int> m_found; ///< the entries that it found
};

} // namespace tessaly
