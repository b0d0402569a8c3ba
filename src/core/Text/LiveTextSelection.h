// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Text/RecognizedContent.h"

#include <QSizeF>

#include <optional>
#include <utility>

namespace tessaly {

/// The words of a picture as a pointer selects them. Points and boxes are in parts of the picture, so that they stay on
/// the words however large it is shown.
class LiveTextSelection {
public:
    enum class Unit { Word, Line };

    LiveTextSelection() = default;
    /// `proportions` are the picture's width and height in any unit.
    LiveTextSelection(const RecognizedContent &content, QSizeF proportions);

    /// What these areas cover, be it in part, is not there: it can be neither selected nor copied nor opened.
    void setHidden(const QList<QRectF> &areas);

    /// On a word, or between two of a line.
    bool isOverText(QPointF point) const { return wordAt(point).has_value(); }
    /// Null without one there. It stands as long as this object does.
    const RecognizedContent::Code *codeAt(QPointF point) const;

    /// The next extendTo() selects from here; nothing is selected yet.
    void begin(QPointF point);
    /// Selects the word or line there, which further extending then keeps; nothing where there is none.
    void selectAt(QPointF point, Unit unit);
    /// Selects from where it began to the word, or line, nearest to the point, in reading order. Lines beside the
    /// columns that both ends stand in are left out.
    void extendTo(QPointF point);
    void selectAll();
    void clear();

    bool isEmpty() const;
    bool contains(QPointF point) const;
    /// Words of a line as the line writes them, lines beside each other joined by a blank, rows by a line feed.
    QString text() const;
    /// One for each run of words that follow each other in a line, as high as the line.
    QList<QRectF> boxes() const;

private:
    using Range = std::pair<qsizetype, qsizetype>; ///< of words, both included

    struct Word {
        QString text;
        QRectF box;
        qsizetype line = 0;
        bool isJoined = false; ///< to the word before it, without a blank
        bool isHidden = false;
    };
    struct Line {
        QRectF box;
        qsizetype row = 0;
        Range words;
    };
    struct Code {
        RecognizedContent::Code content;
        bool isHidden = false;
    };

    void add(const RecognizedContent::Line &line);
    bool follow(qsizetype previous, qsizetype next) const;
    std::optional<QRectF> areaOf(qsizetype word) const;
    std::optional<qsizetype> wordAt(QPointF point) const;
    std::optional<qsizetype> nearestWord(QPointF point) const;
    Range unitAround(qsizetype word) const;
    void select(Range range);
    QList<qsizetype> shownSelection() const;

    QSizeF m_proportions { 1, 1 };
    QList<Word> m_words;
    QList<Line> m_lines;
    QList<Code> m_codes;
    Unit m_unit = Unit::Word;
    std::optional<Range> m_anchor;
    QList<qsizetype> m_selected; ///< ascending
};

} // namespace tessaly
