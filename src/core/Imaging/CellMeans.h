// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <array>
#include <vector>

namespace tessaly {

/// Square cells laid along one axis of a picture so that the middle of one cell is the middle of the picture.
/// Cells are counted from 0, the first that touches the picture; the outer ones may reach beyond it.
class CellAxis {
public:
    /// `side` in pixels, at least 1 and at most `maxSide`.
    CellAxis(int length, double side);

    /// With it every sum of cellMeans stays within 64 bits.
    static constexpr double maxSide = 1 << 27;

    int length() const { return m_length; }
    int count() const { return m_count; }

    /// The first pixel whose centre lies in the cell. The cell ends where the next starts.
    qint64 start(int cell) const;

    /// `start` limited to the picture.
    int startInside(int cell) const;

    /// The cell's place counted from the middle one.
    int fromMiddle(int cell) const { return static_cast<int>(m_firstIndex + cell); }

    /// The radius of the box blur that comes before the cells are averaged: half a side, in whole pixels.
    qint64 blurRadius() const { return m_blurRadius; }

    /// Pixels that one cell's mean adds up, counted as often as the blur uses them.
    qint64 weightOfCell(int cell) const;

    /// The share of pixel `position` in the mean of `cell`. Beyond the picture its edge pixels go on.
    double share(int cell, int position) const;

    /// The pixels with a share in the cell: from the first to before the second.
    std::array<int, 2> reach(int cell) const;

private:
    qint64 weightUpTo(int cell, qint64 position) const;

    int m_length;
    double m_side;
    qint64 m_blurRadius;
    qint64 m_firstIndex;
    int m_count;
};

/// The mean of one cell: blue, green, red and alpha, premultiplied, 0 … 255.
using CellMean = std::array<float, 4>;

/// The picture (4 bytes a pixel) box-blurred with clamped edges and averaged over each cell, row by row of cells.
/// Both steps are one sum with trapezoid weights, taken over integers, so the number of threads changes no bit.
std::vector<CellMean> cellMeans(const QImage &image, const CellAxis &columns, const CellAxis &rows, int threads);

} // namespace tessaly
