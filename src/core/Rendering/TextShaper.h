// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/PaintSteps.h"

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QList>
#include <QRawFont>
#include <QString>

#include <vector>

class QTextLayout;
class QTextLine;

namespace tessaly {

/// Which face a text is set in.
struct TextFace {
    QString family = {}; ///< empty or not installed means the system font
    QFont::Weight weight = QFont::Normal;
    bool italic = false;

    bool operator==(const TextFace &) const = default;
};
size_t qHash(const TextFace &face, size_t seed = 0);

/// A text laid out at a size of 1 point, its top-left corner at the origin. It scales to any size, since nothing is
/// hinted: the same lines at every number of pixels per point.
struct TextShape {
    struct Picture {
        QImage picture;
        QRectF target;
    };
    QPainterPath outline; ///< of all glyphs that have one
    QList<Picture> pictures; ///< colour glyphs
    QSizeF size; ///< the widest line by the height of all lines
    QRectF ink; ///< what is really drawn
    double ascent = 1; ///< from the top of a line to its baseline
    double capHeight = 0.7;
    double lineHeight = 1;
};

/// Where the characters of a text lie when it is laid out at a size of 1 point. Positions are QString indices of the
/// text as it was given; a character is what the user sees as one, such as an emoji of several code points.
struct TextLines {
    struct Character {
        qsizetype position; ///< of its first code unit
        double leading, trailing; ///< its edges in reading order; leading lies right of trailing where that goes left
    };
    struct Line {
        qsizetype start = 0, end = 0; ///< end is where the line break stands, or the text's end
        std::vector<Character> characters = {};
        double endX = 0; ///< of a caret behind the last character
    };
    std::vector<Line> lines; ///< at least one
    double width = 0; ///< of the widest line, blanks at its end included
    double lineHeight = 1;
};

/// Sets texts, each only once. It needs a QGuiApplication, and keeps to the thread that made it.
class TextShaper {
public:
    const TextShape &shape(const QString &text, const TextFace &face);

    /// The same layout as places for a caret; an empty text has one empty line.
    TextLines lines(const QString &text, const TextFace &face);

    /// Starts anew once it keeps more texts and glyphs than any capture shows. What shape() returned is invalid then.
    void dropIfLarge();

private:
    static QTextLine layOut(QTextLayout &layout);
    const QString &systemFamily();
    QFont fontOf(const TextFace &face);
    void addLine(const QString &line, const QFont &font, QPointF origin, TextShape &shape);
    void addRun(const QGlyphRun &run, QPointF origin, TextShape &shape);
    const QPainterPath &glyphOutline(const QRawFont &font, quint32 glyph);
    const TextShape::Picture &colorGlyph(const QRawFont &font, quint32 glyph);

    QString m_systemFamily;
    QHash<std::pair<QString, TextFace>, TextShape> m_shapes;
    QHash<std::pair<QRawFont, quint32>, QPainterPath> m_glyphOutlines;
    QHash<quint32, TextShape::Picture> m_colorGlyphs; ///< target relative to the glyph's origin
};

} // namespace tessaly
