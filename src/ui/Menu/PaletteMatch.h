// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace tessaly {

/// What one point of a letter's worth counts in a score. Between two points there is room for the length of the title,
/// of which less is better.
inline constexpr int paletteScoreStep = 64;

/// How well a text answers what was typed.
struct PaletteMatch {
    int score = 0; ///< more is better; only to be compared with others of the same query
    QList<int> letters; ///< places in the title that were met, ascending
};

/// What is searched for a query: the title, and words that are found too but count less (its menu, its English name).
struct PaletteText {
    QString title;
    QString more;
};

/// Every word of the query must be found, in any order, its letters one after the other with others between them.
/// Letters at the starts of words and letters side by side count most. Case and accents count for nothing. A query of
/// blanks matches everything alike.
std::optional<PaletteMatch> matchPalette(const QString &query, const PaletteText &text);

} // namespace tessaly
