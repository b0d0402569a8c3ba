// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistorySearch.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace tessaly {

namespace {

bool isAscii(QStringView text)
{
    return std::ranges::all_of(text, [](QChar each) { return each.unicode() < 0x80; });
}

/// Accents and the points of Hebrew and Arabic, and characters that only steer the layout. The marks of the low classes
/// are no accents: without them an Indic or Japanese letter would be another letter.
bool isLeftOut(QChar character)
{
    if (character.category() == QChar::Other_Format)
        return true;
    return character.category() == QChar::Mark_NonSpacing && character.combiningClass() > 9; // 9: virama
}

/// Writes out what case folding alone would confuse where the letter i comes with and without a dot.
QString withTurkicCase(QString text)
{
    text.replace(QStringLiteral(u"I\u0307"), QStringLiteral("i"));
    text.replace(QChar(0x130), u'i');
    return text.replace(u'I', QChar(0x131));
}

/// The text without regard to case and accents, so that texts that mean the same word are the same bytes.
QByteArray folded(const QString &text, const QLocale &locale)
{
    const bool turkic = locale.language() == QLocale::Turkish || locale.language() == QLocale::Azerbaijani;
    const QString source = turkic ? withTurkicCase(text) : text;
    if (isAscii(source))
        return source.toLatin1().toLower();
    QString letters = source.normalized(QString::NormalizationForm_KD);
    letters.removeIf(isLeftOut);
    letters = letters.toCaseFolded().replace(QChar(0xdf), QStringLiteral("ss")); // sharp s, which stays one letter
    // Composed again, so that a syllable of Hangul is not found by its beginning alone.
    return letters.normalized(QString::NormalizationForm_C).toUtf8();
}

/// The moment in the forms in which people write it, in their own time.
QString written(const QDateTime &moment, const QLocale &locale)
{
    const QDate date = moment.toLocalTime().date();
    const QTime time = moment.toLocalTime().time();
    return QStringList {
        locale.toString(date, QLocale::LongFormat),
        locale.toString(date, QLocale::ShortFormat),
        date.toString(Qt::ISODate),
        locale.standaloneMonthName(date.month()),
        locale.monthName(date.month(), QLocale::ShortFormat),
        locale.standaloneDayName(date.dayOfWeek()),
        locale.toString(time, QLocale::ShortFormat),
        time.toString(QStringLiteral("HH:mm")),
    }
        .join(u'\n');
}

QList<QByteArray> wordsOf(const QString &query, const QLocale &locale)
{
    QList<QByteArray> words;
    const QStringList parts = query.simplified().split(u' ', Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        const QByteArray word = folded(part, locale);
        if (!word.isEmpty()) // an accent alone
            words += word;
    }
    return words;
}

bool contains(const QByteArray &haystack, const QByteArray &word)
{
    return ::memmem(haystack.constData(), size_t(haystack.size()), word.constData(), size_t(word.size())) != nullptr;
}

/// As == does, but without reading texts that share their memory.
bool isSame(const QString &one, const QString &other)
{
    return (one.constData() == other.constData() && one.size() == other.size()) || one == other;
}

bool isSame(const std::optional<QString> &one, const std::optional<QString> &other)
{
    return one && other ? isSame(*one, *other) : one.has_value() == other.has_value();
}

} // namespace

HistorySearch::HistorySearch(const QLocale &locale) : m_locale(locale) { }

QByteArray HistorySearch::haystack(const SearchKey &key, const QLocale &locale)
{
    // The parts are lines, and a word has no line breaks: it is never found across two of them.
    const QString parts = key.title + u'\n' + written(key.created, locale);
    QByteArray bytes = folded(parts, locale);
    if (key.recognizedText)
        bytes += '\n' + folded(*key.recognizedText, locale);
    return bytes;
}

void HistorySearch::adopt(QHash<QUuid, std::pair<SearchKey, QByteArray>> prepared)
{
    m_cache.insert(prepared);
    m_entries.clear(); // gathered anew with the next query
}

void HistorySearch::gather(const QList<HistoryEntry> &entries)
{
    QHash<QUuid, std::pair<SearchKey, QByteArray>> kept;
    kept.reserve(entries.size());
    m_haystacks.clear();
    m_haystacks.reserve(size_t(entries.size()));
    for (const HistoryEntry &entry : entries) {
        const auto known = m_cache.constFind(entry.id);
        const bool holds = known != m_cache.constEnd() && isSame(known->first.title, entry.title)
            && known->first.created == entry.created && isSame(known->first.recognizedText, entry.recognizedText);
        SearchKey key { entry.title, entry.created, entry.recognizedText };
        m_haystacks.push_back(holds ? known->second : haystack(key, m_locale));
        kept.insert(entry.id, { std::move(key), m_haystacks.back() });
    }
    m_cache = std::move(kept);
    m_entries = entries;
    m_words.clear();
}

/// Whether nothing can be found that the last query did not find: each of its words is a part of a new one.
bool HistorySearch::narrows(const QList<QByteArray> &words) const
{
    return !m_words.isEmpty() && std::ranges::all_of(m_words, [&words](const QByteArray &before) {
        return std::ranges::any_of(words, [&before](const QByteArray &now) { return now.contains(before); });
    });
}

QList<HistoryEntry> HistorySearch::matches(const QString &query, const QList<HistoryEntry> &entries)
{
    QList<QByteArray> words = wordsOf(query, m_locale);
    if (words.isEmpty())
        return entries;
    // A list that shares the kept one's memory has not changed since.
    if (!m_entries.isSharedWith(entries))
        gather(entries);
    if (!narrows(words)) {
        m_found.resize(m_haystacks.size());
        std::iota(m_found.begin(), m_found.end(), 0);
    }
    // Longer words are in fewer entries.
    std::ranges::stable_sort(words, std::greater(), &QByteArray::size);
    std::erase_if(m_found, [this, &words](int index) {
        return !std::ranges::all_of(
            words, [&](const QByteArray &word) { return contains(m_haystacks[size_t(index)], word); });
    });
    m_words = std::move(words);
    QList<HistoryEntry> found;
    found.reserve(qsizetype(m_found.size()));
    for (const int index : m_found)
        found += m_entries.at(index);
    return found;
}

} // namespace tessaly
