// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QList>
#include <QRect>

namespace tessaly {

/// A stretch of ink that looks like a line of text, in pixels of the picture.
struct TextLine {
    QRect box; ///< around all of its ink
    double height = 0; ///< of its tall letters, which tells the size of the type
    int contrast = 255; ///< ink of its strongest pixels
    QList<QRect> pieces = {}; ///< around each connected piece of ink, from left to right
};

/// The lines of text in a picture of ink, found by the size and the neighbourhood of connected ink; frames, rules and
/// pictures are left out where they do not look like letters.
[[nodiscard]] QList<TextLine> textLines(const QImage &ink);

} // namespace tessaly
