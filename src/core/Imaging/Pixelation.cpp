// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/Pixelation.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/CellMeans.h"
#include "core/Imaging/CellNoise.h"
#include "core/Imaging/PixelMemory.h"

#include <algorithm>
#include <cstring>

namespace tessaly::Pixelation {

namespace {

/// The colour of a cell: its mean with the noise over it. The noise is opaque, so it fills what the mean lets through.
QRgb colorOf(const CellMean &mean, bool opaque, float noise)
{
    const float alpha = opaque ? 1 : mean[3] / 255;
    const auto component = [&](float premultiplied) {
        const float below = alpha > 0 ? std::clamp(premultiplied / (255 * alpha), 0.0f, 1.0f) : 0;
        const float above = noise * (1 - alpha) + CellNoise::softLight(below, noise) * alpha;
        return static_cast<int>(above * 255 + 0.5f);
    };
    return qRgb(component(mean[2]), component(mean[1]), component(mean[0]));
}

class Painter {
public:
    Painter(const CellAxis &columns, const CellAxis &rows, std::vector<QRgb> colors, QImage &out) :
        m_columns(columns),
        m_rows(rows),
        m_colors(std::move(colors)),
        m_bits(out.bits()),
        m_bytesPerLine(out.bytesPerLine())
    {
    }

    /// Fills the rows of cells from `first` to before `end`: the first pixel row of each, then copies of it.
    void fill(int first, int end) const
    {
        for (int cellRow = first; cellRow < end; ++cellRow) {
            const int top = m_rows.startInside(cellRow), bottom = m_rows.startInside(cellRow + 1);
            if (top == bottom)
                continue;
            uchar *row = m_bits + top * m_bytesPerLine;
            fillRow(reinterpret_cast<QRgb *>(row), m_colors.data() + qsizetype(cellRow) * m_columns.count());
            for (int y = top + 1; y < bottom; ++y)
                std::memcpy(m_bits + y * m_bytesPerLine, row, std::size_t(m_columns.length()) * sizeof(QRgb));
        }
    }

private:
    void fillRow(QRgb *row, const QRgb *colors) const
    {
        for (int cell = 0; cell < m_columns.count(); ++cell)
            std::fill(row + m_columns.startInside(cell), row + m_columns.startInside(cell + 1), colors[cell]);
    }

    const CellAxis &m_columns, &m_rows;
    std::vector<QRgb> m_colors;
    uchar *m_bits;
    qsizetype m_bytesPerLine;
};

} // namespace

QImage pixelated(const QImage &region, double cellSide, ImageEffects::NoiseSeed seed, int threads)
{
    static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "means are read as blue, green, red and alpha");
    QImage out = PixelMemory::allocate(region.size(), QImage::Format_RGB32);
    if (out.isNull())
        return {};
    const double side = std::min(cellSide, CellAxis::maxSide);
    const CellAxis columns(region.width(), side), rows(region.height(), side);
    const std::vector<CellMean> means = cellMeans(region, columns, rows, threads);
    const bool opaque = !region.hasAlphaChannel();
    std::vector<QRgb> colors(means.size());
    for (int row = 0; row < rows.count(); ++row) {
        for (int column = 0; column < columns.count(); ++column) {
            const std::size_t index = std::size_t(row) * columns.count() + column;
            const float noise = CellNoise::grey(seed.value, columns.fromMiddle(column), rows.fromMiddle(row));
            colors[index] = colorOf(means[index], opaque, noise);
        }
    }
    const Painter painter(columns, rows, std::move(colors), out);
    Parallel::inBands(rows.count(), 4 * threads, threads, [&](int first, int end) { painter.fill(first, end); });
    return out;
}

} // namespace tessaly::Pixelation
