// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/LiveBelow.h"

#include "core/Base/Parallel.h"
#include "core/Rendering/LiveBase.h"
#include "core/Rendering/LiveMarks.h"

namespace tessaly {

static constexpr int tileSide = 128; // pixels

void LiveBelow::drop()
{
    m_count = 0;
    m_layer = {};
    m_made.clear();
}

void LiveBelow::update(const QImage &capture, const LiveGeometry &geometry, const std::optional<size_t> &firstChanged)
{
    if (geometry != m_geometry || capture.cacheKey() != m_captureKey) {
        m_geometry = geometry;
        m_captureKey = capture.cacheKey();
        m_firstChanged.reset();
        drop();
    }
    if (!firstChanged)
        return;
    constexpr size_t worthIt = 16; // marks; fewer are painted as fast as they are copied
    const bool again = m_firstChanged == firstChanged;
    m_firstChanged = firstChanged;
    if (*firstChanged < m_count)
        drop();
    if (!again || m_count == *firstChanged || *firstChanged < worthIt)
        return;
    drop();
    const QRect area = geometry.visibleContent();
    m_layer.reset(area, capture.format());
    if (m_layer.image().isNull())
        return;
    m_count = *firstChanged;
    m_columns = (area.width() + tileSide - 1) / tileSide;
    m_made.assign(size_t(m_columns) * size_t((area.height() + tileSide - 1) / tileSide), 0);
}

void LiveBelow::require(const QRegion &region, const LiveBase &base, const LiveMarks &marks, int threads)
{
    std::vector<size_t> missing;
    for (const QRect &rect : region &m_layer.area()) {
        const QRect inside = rect.translated(-m_layer.origin());
        for (int row = inside.top() / tileSide; row <= inside.bottom() / tileSide; ++row) {
            for (int column = inside.left() / tileSide; column <= inside.right() / tileSide; ++column) {
                const size_t tile = size_t(row) * size_t(m_columns) + size_t(column);
                if (!std::exchange(m_made[tile], char(1)))
                    missing.push_back(tile);
            }
        }
    }
    if (missing.empty())
        return;
    uchar *bits = m_layer.image().bits();
    const QImage &image = m_layer.image();
    const QPoint corner = m_geometry.content.topLeft();
    Parallel::forEach(int(missing.size()), threads, [&](int index) {
        QImage layer(bits, image.width(), image.height(), image.bytesPerLine(), image.format());
        const int column = int(missing[size_t(index)]) % m_columns, row = int(missing[size_t(index)]) / m_columns;
        const QRect tile = QRect(column * tileSide, row * tileSide, tileSide, tileSide).intersected(image.rect());
        const QRect inView = tile.translated(m_layer.origin());
        base.copy(inView, layer, tile.topLeft());
        marks.paint(layer, inView.translated(-corner), m_layer.origin() - corner, 0, m_count);
    });
}

size_t LiveBelow::copy(const QRect &area, QImage &target, QPoint position) const
{
    copyPixels(m_layer.image(), area.translated(-m_layer.origin()), target, position);
    return m_count;
}

} // namespace tessaly
