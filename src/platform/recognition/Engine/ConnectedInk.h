// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QList>
#include <QRect>

namespace tessaly {

/// A piece of ink whose pixels touch each other, also at corners.
struct InkPiece {
    QRect box;
    int area = 0; ///< pixels
    int strongest = 0; ///< ink of its strongest pixel
};

/// The pieces of a picture in Format_Grayscale8 whose pixels have at least `threshold`, in no particular order.
[[nodiscard]] QList<InkPiece> connectedInk(const QImage &ink, int threshold);

} // namespace tessaly
