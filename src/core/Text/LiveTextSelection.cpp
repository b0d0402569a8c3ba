// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Text/LiveTextSelection.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessaly {

namespace {

double distanceOutside(double value, double low, double high) { return std::max({ low - value, value - high, 0.0 }); }

bool overlapAcross(const QRectF &one, const QRectF &other)
{
    return one.left() < other.right() && other.left() < one.right();
}

bool isCovered(const QRectF &box, const QList<QRectF> &areas)
{
    return std::ranges::any_of(areas, [&box](const QRectF &area) { return area.intersects(box); });
}

} // namespace

LiveTextSelection::LiveTextSelection(const RecognizedContent &content, QSizeF proportions) : m_proportions(proportions)
{
    for (const RecognizedContent::Line &line : content.lines)
        add(line);
    for (const RecognizedContent::Code &code : content.codes)
        m_codes += Code { code };
}

void LiveTextSelection::add(const RecognizedContent::Line &line)
{
    const bool continuesRow = !m_lines.isEmpty() && RecognizedContent::areBeside(line.boundingBox, m_lines.last().box);
    const qsizetype row = m_lines.isEmpty() ? 0 : m_lines.last().row + (continuesRow ? 0 : 1);
    const QList<RecognizedContent::Word> words
        = line.words.isEmpty() ? QList { RecognizedContent::Word { line.text, line.boundingBox } } : line.words;
    qsizetype end = -1; // of the previous word in the line's text
    const qsizetype first = m_words.size();
    for (const RecognizedContent::Word &word : words) {
        const qsizetype place = line.text.indexOf(word.text, std::max<qsizetype>(end, 0));
        m_words += Word { word.text, word.boundingBox, m_lines.size(), place >= 0 && place == end };
        end = place < 0 ? -1 : place + word.text.size();
    }
    m_lines += Line { line.boundingBox, row, { first, m_words.size() - 1 } };
}

void LiveTextSelection::setHidden(const QList<QRectF> &areas)
{
    for (Word &word : m_words)
        word.isHidden = isCovered(word.box, areas);
    for (Code &code : m_codes)
        code.isHidden = isCovered(code.content.boundingBox, areas);
}

const RecognizedContent::Code *LiveTextSelection::codeAt(QPointF point) const
{
    const auto found = std::ranges::find_if(
        m_codes, [point](const Code &code) { return !code.isHidden && code.content.boundingBox.contains(point); });
    return found == m_codes.end() ? nullptr : &found->content;
}

/// In one line, with nothing between them.
bool LiveTextSelection::follow(qsizetype previous, qsizetype next) const
{
    return next == previous + 1 && m_words[previous].line == m_words[next].line;
}

/// Where a pointer means the word: on it, as high as its line, and half the way to its neighbours unless that is far.
std::optional<QRectF> LiveTextSelection::areaOf(qsizetype index) const
{
    const Word &word = m_words[index];
    if (word.isHidden)
        return std::nullopt;
    constexpr double farthest = 1.5; // letters
    const double most = farthest * word.box.width() / double(std::max<qsizetype>(word.text.size(), 1));
    const auto reach = [&](qsizetype left, qsizetype right) {
        const bool isShown = left >= 0 && right < m_words.size() && follow(left, right) && !m_words[left].isHidden
            && !m_words[right].isHidden;
        const double gap = isShown ? m_words[right].box.left() - m_words[left].box.right() : 0;
        return gap > 0 && gap / 2 <= most ? gap / 2 : 0;
    };
    const QRectF line = m_lines[word.line].box;
    QRectF area = word.box.adjusted(-reach(index - 1, index), 0, reach(index, index + 1), 0);
    area.setTop(std::min(area.top(), line.top()));
    area.setBottom(std::max(area.bottom(), line.bottom()));
    return area;
}

std::optional<qsizetype> LiveTextSelection::wordAt(QPointF point) const
{
    for (qsizetype index = 0; index < m_words.size(); ++index)
        if (const auto area = areaOf(index); area && area->contains(point))
            return index;
    return std::nullopt;
}

std::optional<qsizetype> LiveTextSelection::nearestWord(QPointF point) const
{
    constexpr double sideways = 0.25; // beside a line is still the same height, also far from its end
    std::optional<qsizetype> nearest;
    std::pair least { std::numeric_limits<double>::infinity(), 0.0 }; // to the line, to the word along it
    for (qsizetype index = 0; index < m_words.size(); ++index) {
        if (m_words[index].isHidden)
            continue;
        const QRectF line = m_lines[m_words[index].line].box, word = m_words[index].box;
        const double across = sideways * distanceOutside(point.x(), line.left(), line.right()) * m_proportions.width();
        const double down = distanceOutside(point.y(), line.top(), line.bottom()) * m_proportions.height();
        const std::pair distance { std::hypot(across, down), distanceOutside(point.x(), word.left(), word.right()) };
        if (distance < least) {
            least = distance;
            nearest = index;
        }
    }
    return nearest;
}

LiveTextSelection::Range LiveTextSelection::unitAround(qsizetype word) const
{
    return m_unit == Unit::Line ? m_lines[m_words[word].line].words : Range(word, word);
}

void LiveTextSelection::begin(QPointF point)
{
    clear();
    m_unit = Unit::Word;
    if (const auto word = nearestWord(point))
        m_anchor = unitAround(*word);
}

void LiveTextSelection::selectAt(QPointF point, Unit unit)
{
    clear();
    m_unit = unit;
    const auto word = wordAt(point);
    if (!word)
        return;
    m_anchor = unitAround(*word);
    select(*m_anchor);
}

void LiveTextSelection::extendTo(QPointF point)
{
    const auto word = nearestWord(point);
    if (!word || !m_anchor)
        return;
    const Range head = unitAround(*word);
    select({ std::min(m_anchor->first, head.first), std::max(m_anchor->second, head.second) });
}

void LiveTextSelection::select(Range range)
{
    const QRectF columns = m_lines[m_words[range.first].line].box | m_lines[m_words[range.second].line].box;
    QSet<qsizetype> rows; // that have something in these columns
    for (qsizetype index = range.first; index <= range.second; ++index)
        if (const Line &line = m_lines[m_words[index].line]; overlapAcross(line.box, columns))
            rows += line.row;
    m_selected.clear();
    for (qsizetype index = range.first; index <= range.second; ++index) {
        const Line &line = m_lines[m_words[index].line];
        if (overlapAcross(line.box, columns) || !rows.contains(line.row))
            m_selected += index;
    }
}

void LiveTextSelection::selectAll()
{
    clear();
    if (!m_words.isEmpty())
        m_anchor = { 0, 0 };
    for (qsizetype index = 0; index < m_words.size(); ++index)
        m_selected += index;
}

void LiveTextSelection::clear()
{
    m_anchor.reset();
    m_selected.clear();
}

QList<qsizetype> LiveTextSelection::shownSelection() const
{
    QList<qsizetype> shown = m_selected;
    shown.removeIf([this](qsizetype index) { return m_words[index].isHidden; });
    return shown;
}

bool LiveTextSelection::isEmpty() const { return shownSelection().isEmpty(); }

bool LiveTextSelection::contains(QPointF point) const
{
    const auto word = wordAt(point);
    return word && m_selected.contains(*word);
}

QString LiveTextSelection::text() const
{
    QString text;
    std::optional<qsizetype> previous;
    for (const qsizetype index : shownSelection()) {
        const Word &word = m_words[index];
        // What is not selected between two words takes no part in what joins them.
        const bool isJoined = previous && word.isJoined && follow(*previous, index);
        const bool isSameRow = previous && m_lines[m_words[*previous].line].row == m_lines[word.line].row;
        if (previous && !isJoined)
            text += isSameRow ? u' ' : u'\n';
        text += word.text;
        previous = index;
    }
    return text;
}

QList<QRectF> LiveTextSelection::boxes() const
{
    QList<QRectF> boxes;
    std::optional<qsizetype> previous;
    for (const qsizetype index : shownSelection()) {
        const Word &word = m_words[index];
        QRectF box = m_lines[word.line].box | word.box;
        box.setLeft(word.box.left());
        box.setRight(word.box.right());
        if (previous && follow(*previous, index))
            boxes.last() |= box;
        else
            boxes += box;
        previous = index;
    }
    return boxes;
}

} // namespace tessaly
