// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryIndexScanner.h"

#include "core/History/HistoryEntryJson.h"

#include <bit>
#include <charconv>
#include <cstring>

namespace tessaly {

namespace {

bool isSpace(char letter) { return letter == ' ' || letter == '\n' || letter == '\r' || letter == '\t'; }

/// What stands in a text for itself.
bool isPlain(char letter) { return letter != '"' && letter != '\\' && static_cast<unsigned char>(letter) >= 0x20; }

constexpr char byteOrderMark[] = "\xef\xbb\xbf";

} // namespace

HistoryIndexScanner::HistoryIndexScanner(const QByteArray &json) : m_at(json.constBegin()), m_end(json.constEnd())
{
    if (!json.isValidUtf8())
        m_at = m_end;
}

std::optional<QList<HistoryEntry>> HistoryIndexScanner::entries()
{
    QList<HistoryEntry> entries;
    int version = 0;
    bool hasEntries = false;
    if (!take('{'))
        return std::nullopt;
    do {
        QByteArray key;
        if (!takeText(key) || !take(':'))
            return std::nullopt;
        const bool isList = key == "entries" && !std::exchange(hasEntries, true);
        if (!(isList && takeList(entries)) && !(key == "version" && version == 0 && takeNumber(version)))
            return std::nullopt;
    } while (take(','));
    const bool isWhole = take('}') && std::all_of(m_at, m_end, isSpace);
    if (!isWhole || !hasEntries || version != HistoryIndex::currentVersion)
        return std::nullopt;
    return entries;
}

bool HistoryIndexScanner::take(char symbol)
{
    while (m_at != m_end && isSpace(*m_at))
        ++m_at;
    if (m_at == m_end || *m_at != symbol)
        return false;
    ++m_at;
    return true;
}

bool HistoryIndexScanner::takeText(QByteArray &text)
{
    text.resize(0);
    if (!take('"'))
        return false;
    for (;;) {
        const char *const start = m_at;
        m_at = std::find_if_not(m_at, m_end, isPlain);
        text.append(start, m_at - start);
        if (m_at == m_end)
            return false;
        if (*m_at++ == '"')
            return !text.startsWith(byteOrderMark); // which Qt would leave out
        if (m_at[-1] != '\\' || !takeEscape(text))
            return false;
    }
}

/// The short ones; the others are rare enough to be left.
bool HistoryIndexScanner::takeEscape(QByteArray &text)
{
    static constexpr char letters[] = "\"\\/bfnrt", meanings[] = "\"\\/\b\f\n\r\t";
    const char *const found = m_at == m_end || *m_at == 0 ? nullptr : std::strchr(letters, *m_at);
    if (!found)
        return false;
    text.append(meanings[found - letters]);
    ++m_at;
    return true;
}

/// Whole and without exponent, as Qt writes numbers of this size.
bool HistoryIndexScanner::takeNumber(int &number)
{
    while (m_at != m_end && isSpace(*m_at))
        ++m_at;
    const auto [end, error] = std::from_chars(m_at, m_end, number);
    const char *const digits = m_at + (m_at != end && *m_at == '-');
    const bool hasNoZeroBefore = end - digits <= 1 || *digits != '0';
    const bool isWhole
        = error == std::errc() && hasNoZeroBefore && (end == m_end || *end == ',' || *end == '}' || isSpace(*end));
    m_at = end;
    return isWhole;
}

template <class Member>
bool HistoryIndexScanner::takeValue(Member &member)
{
    if constexpr (std::is_same_v<Member, int>) {
        return takeNumber(member);
    } else if constexpr (std::is_same_v<Member, QString> || std::is_same_v<Member, std::optional<QString>>) {
        if (!takeText(m_text))
            return false;
        member = QString::fromUtf8(m_text);
        return true;
    } else {
        return takeText(m_text) && json::Codec<Member>::read(QString::fromUtf8(m_text), member);
    }
}

/// `taken` has a bit for each field that has been read.
bool HistoryIndexScanner::takeField(const QByteArray &key, HistoryEntry &entry, unsigned &taken)
{
    unsigned bit = 1;
    bool isTaken = false;
    const auto takeIfIts = [&](const auto &field) {
        if (key == field.key && !(taken & bit)) {
            taken |= bit;
            isTaken = takeValue(entry.*field.member);
        }
        bit <<= 1;
    };
    std::apply([&](const auto &...field) { (takeIfIts(field), ...); }, history::fields);
    return isTaken;
}

/// With all that an entry must have; without a text it is as whole.
bool HistoryIndexScanner::takeEntry(HistoryEntry &entry)
{
    constexpr auto fieldCount = std::tuple_size_v<decltype(history::fields)>;
    unsigned taken = 0;
    if (!take('{'))
        return false;
    do {
        QByteArray key;
        if (!takeText(key) || !take(':') || !takeField(key, entry, taken))
            return false;
    } while (take(','));
    const auto missing = fieldCount - static_cast<std::size_t>(std::popcount(taken));
    return take('}') && missing == (entry.recognizedText ? 0 : 1);
}

bool HistoryIndexScanner::takeList(QList<HistoryEntry> &entries)
{
    if (!take('['))
        return false;
    if (take(']'))
        return true;
    do {
        if (!takeEntry(entries.emplace_back()))
            return false;
    } while (take(','));
    return take(']');
}

} // namespace tessaly
