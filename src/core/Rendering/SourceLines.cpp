// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/SourceLines.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace tessaly {

namespace {

/// No mark shows more; a text of many megabytes in a file must not stop the program.
constexpr qsizetype longestLine = 4000, mostLines = 2000;

bool breaksLine(QChar character)
{
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator
        || character == QChar::ParagraphSeparator;
}

SourceLine lineFrom(const QString &text, qsizetype start)
{
    const auto end = std::find_if(text.begin() + start, text.end(), breaksLine);
    SourceLine line { start, end - text.begin(), {} };
    line.shown = text.mid(start, line.end - start);
    // The emoji font knows keycaps by the digit and the cap, without the selector between them.
    const QString cap = QStringLiteral("\uFE0F\u20E3");
    for (qsizetype at = line.shown.indexOf(cap); at >= 0; at = line.shown.indexOf(cap, at)) {
        line.shown.remove(at, 1);
        line.leftOut += at;
    }
    line.shown.truncate(longestLine);
    return line;
}

} // namespace

qsizetype SourceLine::positionOf(qsizetype shownPosition) const
{
    return start + shownPosition
        + std::count_if(leftOut.begin(), leftOut.end(), [&](qsizetype before) { return before < shownPosition; });
}

QList<SourceLine> sourceLines(const QString &text)
{
    QList<SourceLine> lines;
    for (qsizetype start = 0; lines.size() < mostLines;) {
        lines += lineFrom(text, start);
        const qsizetype end = lines.last().end;
        if (end == text.size())
            break;
        const bool pair = text[end] == u'\r' && end + 1 < text.size() && text[end + 1] == u'\n';
        start = end + (pair ? 2 : 1);
    }
    return lines;
}

QList<CharacterSpan> charactersOf(const QString &line)
{
    constexpr QChar joiner(0x200D);
    QList<CharacterSpan> characters;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, line);
    qsizetype start = 0;
    for (qsizetype end = finder.toNextBoundary(); end > start; start = end, end = finder.toNextBoundary()) {
        if (start > 0 && line[start - 1] == joiner && line[start].isHighSurrogate())
            characters.last().lastPart = start;
        else
            characters += CharacterSpan { start, start };
    }
    return characters;
}

} // namespace tessaly
