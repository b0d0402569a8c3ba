// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRect>

#include <vector>

namespace tessaly {

/// A picture shown larger or smaller, part by part: smaller by the average of what a pixel covers, up to twice its size
/// by blending neighbours, and beyond that with its pixels as crisp squares. A part has the bytes that it has in the
/// whole.
class PictureScaling {
public:
    /// `whole` is the size in pixels that the picture is shown at.
    PictureScaling(const QImage &picture, QSize whole);

    /// Paints `part` of the whole into `target`, of the picture's format, its top-left corner at `position`.
    void paint(QRect part, QImage &target, QPoint position, int threads) const;

private:
    /// The source pixels that one pixel is made of, and their shares, which come to 256.
    struct Taps {
        int first = 0;
        std::vector<uint16_t> weights;
    };
    static Taps tapsAt(int index, int from, int to);

    void paintRow(int y, const std::vector<Taps> &columns, QRgb *row) const;

    QImage m_picture;
    QSize m_whole;
};

} // namespace tessaly
