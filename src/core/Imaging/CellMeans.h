// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <array>
#include <vector>

namespace tessaly {

/// How often a cell's mean uses the pixels of one axis, from pixel `first` on.
struct CellWeights {
    int first = 0;
    std::vector<qint64> weights;
    qint64 total = 0;
};

/// Square cells laid along one axis of a picture so that the middle of one cell is the middle of the picture.
/// Cells are counted from 0, the first that touches the picture; the outer ones may reach beyond it.
class CellAxis {
public:
    /// `side` in pixels, at least 1 and at most `maxSide`.
    CellAxis(int length, double side);

    /// With it every weight stays within 63 bits.
    static constexpr double maxSide = 1 << 27;

    int length() const { return m_length; }
    int count() const { return m_count; }

    /// The first pixel whose centre lies in the cell, limited to the picture. The cell ends where the next starts.
    int start(int cell) const;

    /// The cell's place counted from the middle one.
    int fromMiddle(int cell) const { return static_cast<int>(m_firstIndex + cell); }

    /// The weights of a box blur with a radius of half a side followed by the mean over the cell. Beyond the picture
    /// its edge pixels go on.
    CellWeights weights(int cell) const;

private:
    qint64 border(int cell) const;

    int m_length;
    double m_side;
    qint64 m_firstIndex;
    int m_count;
};

/// The mean of one cell: blue, green, red and alpha, premultiplied, 0 … 255.
using CellMean = std::array<float, 4>;

/// Averages a picture (4 bytes a pixel) over cells, one row of cells at a time. Blurring and averaging are one sum
/// with trapezoid weights. Keeps references to the picture and the axes; any number of threads may ask.
class CellAverager {
public:
    CellAverager(const QImage &image, const CellAxis &columns, const CellAxis &rows);

    std::vector<CellMean> row(int cellRow) const;

private:
    /// The shares of a cell's pixels in its mean, from pixel `first` on.
    struct ColumnShares {
        int first = 0;
        std::vector<float> shares;
    };

    std::vector<float> rowsAdded(const CellWeights &rows) const;

    const QImage &m_image;
    const CellAxis &m_rows;
    std::vector<ColumnShares> m_columns;
};

} // namespace tessaly
