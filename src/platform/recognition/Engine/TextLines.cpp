// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/TextLines.h"

#include "platform/recognition/Engine/ConnectedInk.h"

#include <numeric>

namespace tessaly {

namespace {

// Faint enough to see gray hints, strong enough to pass over the noise of pictures.
constexpr int inkThreshold = 28;
// Letters of the smallest and the largest type that is read, in pixels.
constexpr int minimumLetterHeight = 4, maximumLetterHeight = 160;
// The widest piece that letters that touch each other make, in parts of its height.
constexpr double maximumWidth = 40;
// Letters of a line are at most this far apart, in parts of the taller one's height: two blanks, or a blank of a
// monospaced type.
constexpr double maximumGap = 1.5;

double overlap(const QRect &a, const QRect &b)
{
    return std::min(a.bottom(), b.bottom()) - std::max(a.top(), b.top()) + 1;
}

int gap(const QRect &a, const QRect &b) { return std::max(a.left(), b.left()) - std::min(a.right(), b.right()) - 1; }

/// Large things with little ink, bars and rules.
bool isFrame(const InkPiece &piece)
{
    const double width = piece.box.width(), height = piece.box.height();
    const double filled = piece.area / (width * height);
    return height > maximumLetterHeight || width > maximumWidth * height || (height > 24 && width > 24 && filled < 0.12)
        || (height > 8 && width > 1.5 * height && filled < 0.22)
        || (height > 12 && width > 2 * height && filled > 0.92);
}

bool isLetter(const InkPiece &piece) { return piece.box.height() >= minimumLetterHeight && !isFrame(piece); }

/// Whether two letters stand on the same line beside each other.
bool belongTogether(const QRect &a, const QRect &b)
{
    const double smaller = std::min(a.height(), b.height()), taller = std::max(a.height(), b.height());
    const double common = overlap(a, b);
    return common >= 0.5 * smaller && common >= 0.3 * taller && gap(a, b) <= maximumGap * taller;
}

/// The letters' groups: for each letter, which are sorted from left to right, the number of its group.
std::vector<int> grouped(const QList<InkPiece> &letters)
{
    std::vector<int> group(std::size_t(letters.size()));
    std::iota(group.begin(), group.end(), 0);
    const auto rootOf = [&group](int letter) {
        while (group[std::size_t(letter)] != letter)
            letter = group[std::size_t(letter)] = group[std::size_t(group[std::size_t(letter)])];
        return letter;
    };
    for (int i = 0; i < letters.size(); ++i) {
        const QRect &here = letters[i].box;
        for (int j = i + 1; j < letters.size(); ++j) {
            const QRect &next = letters[j].box;
            if (next.left() - here.right() > maximumGap * maximumLetterHeight)
                break;
            if (belongTogether(here, next))
                group[std::size_t(rootOf(j))] = rootOf(i);
        }
    }
    for (int i = 0; i < int(group.size()); ++i)
        group[std::size_t(i)] = rootOf(i);
    return group;
}

int quantile(QList<int> values, double share)
{
    std::ranges::sort(values);
    return values[std::min(values.size() - 1, qsizetype(share * double(values.size())))];
}

TextLine lineOf(const QList<InkPiece> &letters)
{
    TextLine line;
    QList<int> heights;
    line.contrast = 0;
    for (const InkPiece &letter : letters) {
        line.box |= letter.box;
        line.pieces += letter.box;
        line.contrast = std::max(line.contrast, letter.strongest);
        heights += letter.box.height();
    }
    line.height = quantile(heights, 0.8);
    return line;
}

QList<TextLine> linesOf(const QList<InkPiece> &letters)
{
    const std::vector<int> group = grouped(letters);
    std::vector<QList<InkPiece>> members(group.size());
    for (std::size_t i = 0; i < group.size(); ++i)
        members[std::size_t(group[i])] += letters[qsizetype(i)];
    QList<TextLine> lines;
    for (const QList<InkPiece> &letterGroup : members) {
        if (!letterGroup.isEmpty())
            lines += lineOf(letterGroup);
    }
    return lines;
}

/// Where dots, commas, quotes and dashes of a line lie: beside or between its letters, a little above or below them.
QRect surroundings(const TextLine &line)
{
    const int beside = int(maximumGap * line.height), above = int(0.4 * line.height);
    return line.box.adjusted(-beside, -above, beside, above);
}

void take(TextLine &line, const QList<QRect> &pieces)
{
    line.pieces += pieces;
    for (const QRect &piece : pieces)
        line.box |= piece;
}

/// Lines of nothing but dots and dashes beside taller letters are no lines of their own.
void joinTinyLines(QList<TextLine> &lines)
{
    std::ranges::stable_sort(lines, std::greater(), &TextLine::height);
    QList<TextLine> kept;
    for (const TextLine &line : lines) {
        const auto owner = std::ranges::find_if(kept, [&line](const TextLine &taller) {
            return line.height < 0.62 * taller.height && line.box.width() < 2 * taller.height
                && surroundings(taller).contains(line.box);
        });
        if (owner == kept.end())
            kept += line;
        else
            take(*owner, line.pieces);
    }
    lines = kept;
}

void takeSmallPieces(QList<TextLine> &lines, const QList<InkPiece> &small)
{
    for (const InkPiece &piece : small) {
        const auto owner = std::ranges::find_if(lines, [&piece](const TextLine &line) {
            return piece.box.width() <= 2 * line.height && surroundings(line).contains(piece.box);
        });
        if (owner != lines.end())
            take(*owner, { piece.box });
    }
}

/// Lines that lie in each other: parts of letters, accents, and letters of very different size beside each other.
void joinNested(QList<TextLine> &lines)
{
    std::ranges::sort(lines, [](const TextLine &a, const TextLine &b) { return a.box.width() > b.box.width(); });
    QList<TextLine> kept;
    for (const TextLine &line : lines) {
        const auto outer = std::ranges::find_if(kept, [&line](const TextLine &other) {
            const QRect common = other.box & line.box;
            return common.width() * common.height() > 0.7 * line.box.width() * line.box.height();
        });
        if (outer == kept.end()) {
            kept += line;
            continue;
        }
        outer->pieces += line.pieces;
        outer->box |= line.box;
    }
    lines = kept;
}

} // namespace

QList<TextLine> textLines(const QImage &ink)
{
    QList<InkPiece> letters, small;
    for (const InkPiece &piece : connectedInk(ink, inkThreshold)) {
        if (isLetter(piece))
            letters += piece;
        else if (!isFrame(piece) || piece.box.width() < 24)
            small += piece;
    }
    const auto left = [](const InkPiece &piece) { return piece.box.left(); };
    std::ranges::sort(letters, {}, left);
    std::ranges::sort(small, {}, left);
    QList<TextLine> lines = linesOf(letters);
    joinTinyLines(lines);
    takeSmallPieces(lines, small);
    joinNested(lines);
    for (TextLine &line : lines)
        std::ranges::sort(line.pieces, {}, [](const QRect &piece) { return piece.left(); });
    std::ranges::sort(lines, [](const TextLine &a, const TextLine &b) {
        return std::pair(a.box.top(), a.box.left()) < std::pair(b.box.top(), b.box.left());
    });
    return lines;
}

} // namespace tessaly
