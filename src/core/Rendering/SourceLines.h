// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace tessaly {

/// One line of a text as it is shown, and where it stands in the text.
struct SourceLine {
    qsizetype start = 0; ///< of its first code unit
    qsizetype end = 0; ///< where its line break stands, or the text's end
    QString shown; ///< without the selectors within keycaps, and cut where no mark shows more
    QList<qsizetype> leftOut = {}; ///< positions in `shown` before which a code unit of the text is missing

    /// The position in the text of a position in `shown`.
    qsizetype positionOf(qsizetype shownPosition) const;
};

/// The lines of a text, whatever ends them; at least one. A text of many megabytes is cut.
QList<SourceLine> sourceLines(const QString &text);

/// What the user sees as one character.
struct CharacterSpan {
    qsizetype start = 0;
    qsizetype lastPart = 0; ///< where its last grapheme cluster starts: an emoji may join several
};
QList<CharacterSpan> charactersOf(const QString &line);

} // namespace tessaly
