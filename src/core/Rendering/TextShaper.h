// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/PaintSteps.h"

#include <QFont>
#include <QGlyphRun>
#include <QHash>
#include <QList>
#include <QRawFont>
#include <QString>

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

/// Sets texts, each only once. It needs a QGuiApplication, and keeps to the thread that made it.
class TextShaper {
public:
    const TextShape &shape(const QString &text, const TextFace &face);

private:
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
