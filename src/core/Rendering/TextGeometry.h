// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Annotation.h"
#include "core/Rendering/TextShaper.h"

namespace tessaly {

/// Where the characters of text marks really lie, measured with the fonts that draw them. All results are image
/// points; positions in a text are QString indices and fall between what the user sees as characters. Needs a
/// QGuiApplication; main thread only.
class TextGeometry {
public:
    /// The box of the laid out lines: its corner is p1, and it is at least as high as one line and 1 point wide.
    QRectF box(const Annotation &text);

    /// The caret before the character at `position`: a line of no width, as high as its line.
    QLineF caret(const Annotation &text, qsizetype position);

    /// The boxes of the characters from `first` up to `end`, one a line. A line break among them is a narrow box, too.
    QList<QRectF> selection(const Annotation &text, qsizetype first, qsizetype end);

    /// The position nearest to a point.
    qsizetype positionAt(const Annotation &text, QPointF point);

private:
    const TextLines &layoutOf(const Annotation &text);
    static double fontSizeOf(const Annotation &text);

    TextShaper m_shaper;
    TextLines m_layout; ///< of m_text in m_face: one text is asked about many times while it is edited
    QString m_text;
    TextFace m_face;
};

} // namespace tessaly
