// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPainterPath>
#include <QRect>

#include <cstdint>
#include <vector>

namespace tessaly {

/// The pixels that a shape covers, row by row, as runs of equal coverage.
///
/// A shape is turned into a mask once; any number of threads then paint rows of it. The painter's own rasteriser would
/// walk the whole outline again for every band of rows.
class CoverageMask {
public:
    struct Run {
        int x;
        uint32_t length : 24;
        uint32_t coverage : 8; ///< 1 to 255
    };

    CoverageMask() = default;
    /// `outline` in pixels, filled by its own rule. Only what lies within `clip` is kept.
    CoverageMask(const QPainterPath &outline, const QRect &clip);

    bool isEmpty() const { return m_runs.empty(); }
    int firstRow() const { return m_firstRow; }
    int endRow() const { return m_firstRow + int(m_rowStarts.size()) - 1; }

    /// The runs of a row from firstRow() to endRow() − 1, from left to right.
    std::pair<const Run *, const Run *> row(int y) const
    {
        const size_t index = size_t(y - m_firstRow);
        return { m_runs.data() + m_rowStarts[index], m_runs.data() + m_rowStarts[index + 1] };
    }

private:
    int m_firstRow = 0;
    std::vector<uint32_t> m_rowStarts { 0 }; ///< into m_runs, with one more for the end
    std::vector<Run> m_runs;
};

} // namespace tessaly
