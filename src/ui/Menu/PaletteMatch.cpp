// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Menu/PaletteMatch.h"

#include <algorithm>
#include <vector>

namespace tessaly {

namespace {

// What a met letter is worth.
constexpr int letterWorth = 2;
constexpr int besideWorth = 6; ///< more, directly behind the one before
constexpr int wordStartWorth = 9; ///< more, at the start of a word
constexpr int textStartWorth = 4; ///< more, at the start of the text
constexpr int gapCost = 1; ///< for each letter between two that were met
constexpr int mostGapCost = 5;
constexpr int wholeWordWorth = 6; ///< more, when a word of the text is the word that was typed
constexpr int outsideTitlePercent = 50;

/// Without case and accents, one letter for each of the text.
std::vector<char16_t> plainLetters(const QString &text)
{
    std::vector<char16_t> letters;
    letters.reserve(static_cast<std::size_t>(text.size()));
    for (const QChar each : text) {
        const QString parts = each.decomposition();
        letters.push_back((parts.isEmpty() ? each : parts.front()).toCaseFolded().unicode());
    }
    return letters;
}

/// Finds the best places for the letters of one word in a text, by the best places for the letters before.
class WordSearch {
public:
    WordSearch(const std::vector<char16_t> &word, const std::vector<char16_t> &text) :
        m_word(word),
        m_text(text),
        m_cells(word.size() * text.size())
    {
    }

    std::optional<PaletteMatch> best()
    {
        for (std::size_t letter = 0; letter < m_word.size(); ++letter) {
            for (std::size_t place = letter; place < m_text.size(); ++place)
                fill(letter, place);
        }
        std::size_t end = m_text.size();
        for (std::size_t place = 0; place < m_text.size(); ++place) {
            const Cell &last = cell(m_word.size() - 1, place);
            if (last.met && (end == m_text.size() || last.score > cell(m_word.size() - 1, end).score))
                end = place;
        }
        if (end == m_text.size())
            return std::nullopt;
        PaletteMatch match { cell(m_word.size() - 1, end).score, {} };
        for (std::size_t letter = m_word.size(); letter-- > 0;) {
            match.letters.prepend(static_cast<int>(end));
            end = cell(letter, end).previous;
        }
        if (isWholeWord(match.letters))
            match.score += wholeWordWorth;
        return match;
    }

private:
    struct Cell {
        bool met = false;
        int score = 0; ///< of the letters up to this one, with this one here
        std::size_t previous = 0; ///< where the letter before is then
    };

    Cell &cell(std::size_t letter, std::size_t place) { return m_cells[letter * m_text.size() + place]; }
    bool startsWord(std::size_t place) const
    {
        return place == 0 || (!QChar(m_text[place - 1]).isLetterOrNumber() && QChar(m_text[place]).isLetterOrNumber());
    }

    int worth(std::size_t place) const
    {
        return letterWorth + (startsWord(place) ? wordStartWorth : 0) + (place == 0 ? textStartWorth : 0);
    }

    void fill(std::size_t letter, std::size_t place)
    {
        if (m_text[place] != m_word[letter])
            return;
        Cell &here = cell(letter, place);
        if (letter == 0) {
            here = { true, worth(place), 0 };
            return;
        }
        for (std::size_t before = letter - 1; before < place; ++before) {
            const Cell &earlier = cell(letter - 1, before);
            if (!earlier.met)
                continue;
            const int between = static_cast<int>(place - before) - 1;
            const int link = between == 0 ? besideWorth : -std::min(between * gapCost, mostGapCost);
            const int score = earlier.score + worth(place) + link;
            if (!here.met || score > here.score)
                here = { true, score, before };
        }
    }

    bool isWholeWord(const QList<int> &letters) const
    {
        const auto first = static_cast<std::size_t>(letters.first());
        const auto last = static_cast<std::size_t>(letters.last());
        const bool ends = last + 1 == m_text.size() || !QChar(m_text[last + 1]).isLetterOrNumber();
        return ends && startsWord(first) && last - first + 1 == m_word.size();
    }

    const std::vector<char16_t> &m_word;
    const std::vector<char16_t> &m_text;
    std::vector<Cell> m_cells;
};

} // namespace

std::optional<PaletteMatch> matchPalette(const QString &query, const PaletteText &text)
{
    const auto title = plainLetters(text.title);
    const auto more = plainLetters(text.more);
    PaletteMatch whole;
    const QStringList words = query.split(u' ', Qt::SkipEmptyParts);
    for (const QString &typed : words) {
        const auto word = plainLetters(typed);
        auto inTitle = WordSearch(word, title).best();
        const auto elsewhere = WordSearch(word, more).best();
        const int score = elsewhere ? elsewhere->score * outsideTitlePercent / 100 : 0;
        if (!inTitle && !elsewhere)
            return std::nullopt;
        if (inTitle && inTitle->score >= score) {
            whole.score += inTitle->score;
            whole.letters += inTitle->letters;
        } else {
            whole.score += score;
        }
    }
    std::ranges::sort(whole.letters);
    whole.letters.erase(std::ranges::unique(whole.letters).begin(), whole.letters.end());
    if (!words.isEmpty())
        whole.score = whole.score * paletteScoreStep - std::min(int(text.title.size()), paletteScoreStep - 1);
    return whole;
}

} // namespace tessaly
