// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/MarkReach.h"

#include <QList>

#include <algorithm>

namespace tessaly {

namespace {

constexpr int tileSide = 32; // pixels

/// The tiles of a box that are touched, a band of them at a time.
class Tiles {
public:
    explicit Tiles(const QRect &box) :
        m_box(box),
        m_columns((box.width() + tileSide - 1) / tileSide),
        m_touched(size_t(m_columns) * size_t((box.height() + tileSide - 1) / tileSide))
    {
    }

    void touch(const CoverageMask &mask)
    {
        const int end = std::min(mask.endRow(), m_box.bottom() + 1);
        for (int y = std::max(mask.firstRow(), m_box.top()); y < end; ++y) {
            char *row = m_touched.data() + size_t((y - m_box.top()) / tileSide) * size_t(m_columns);
            const auto [first, last] = mask.row(y);
            for (const CoverageMask::Run *run = first; run != last; ++run) {
                const int from = std::max(run->x - m_box.left(), 0);
                const int to = std::min(run->x - m_box.left() + int(run->length), m_box.width());
                if (from < to)
                    std::fill(row + from / tileSide, row + (to - 1) / tileSide + 1, char(1));
            }
        }
    }

    /// The whole box where most of it is touched.
    QRegion region() const
    {
        const auto count = std::count(m_touched.begin(), m_touched.end(), char(1));
        if (size_t(count) * 3 > m_touched.size() * 2)
            return m_box;
        QList<QRect> rects;
        for (int top = 0, band = 0; top < m_box.height(); top += tileSide, ++band) {
            const char *row = m_touched.data() + size_t(band) * size_t(m_columns);
            for (int from = 0; from < m_columns; ++from) {
                if (!row[from])
                    continue;
                int to = from;
                while (to < m_columns && row[to])
                    ++to;
                rects += QRect(m_box.left() + from * tileSide, m_box.top() + top, (to - from) * tileSide, tileSide)
                             .intersected(m_box);
                from = to;
            }
        }
        QRegion region;
        region.setRects(rects.constData(), int(rects.size())); // in the order and the bands that it asks for
        return region;
    }

private:
    QRect m_box;
    int m_columns;
    std::vector<char> m_touched; ///< 1 where touched
};

const CoverageMask *maskOf(const PaintStep &step)
{
    if (const auto *fill = std::get_if<FillStep>(&step))
        return &fill->fittedMask;
    if (const auto *lens = std::get_if<LensStep>(&step))
        return &lens->fittedMask;
    return nullptr;
}

} // namespace

QRegion reachOf(const PreparedMark &mark, const PixelGrid &grid, const QRect &pixels)
{
    if (mark.steps.empty())
        return {};
    const QRect box = grid.touchedPixels(mark.bounds).adjusted(-1, -1, 1, 1).intersected(pixels);
    constexpr int small = 4 * tileSide;
    const bool allShapes
        = std::all_of(mark.steps.begin(), mark.steps.end(), [](const PaintStep &step) { return maskOf(step); });
    if (box.isEmpty() || !allShapes || (box.width() < small && box.height() < small))
        return box;
    Tiles tiles(box);
    for (const PaintStep &step : mark.steps)
        tiles.touch(*maskOf(step));
    return tiles.region();
}

} // namespace tessaly
