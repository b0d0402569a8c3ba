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
    const float alpha = opaque ? 1 : mean[3] / 255, scale = alpha > 0 ? 1 / (255 * alpha) : 0;
    const auto component = [&](float premultiplied) {
        const float below = std::min(premultiplied * scale, 1.0f);
        const float above = noise * (1 - alpha) + CellNoise::softLight(below, noise) * alpha;
        return static_cast<int>(above * 255 + 0.5f);
    };
    return qRgb(component(mean[2]), component(mean[1]), component(mean[0]));
}

class CellPainter {
public:
    CellPainter(const QImage &region, double side, ImageEffects::NoiseSeed seed, QImage &out) :
        m_columns(region.width(), side),
        m_rows(region.height(), side),
        m_averager(region, m_columns, m_rows),
        m_opaque(!region.hasAlphaChannel()),
        m_seed(seed),
        m_bits(out.bits()),
        m_bytesPerLine(out.bytesPerLine())
    {
    }

    CellPainter(const CellPainter &) = delete; // the averager refers to the axes
    CellPainter &operator=(const CellPainter &) = delete;

    int rowCount() const { return m_rows.count(); }

    /// Fills a row of cells: its first row of pixels, then copies of it.
    void paintRow(int cellRow) const
    {
        const int top = m_rows.start(cellRow), bottom = m_rows.start(cellRow + 1);
        if (top == bottom)
            return;
        uchar *first = m_bits + top * m_bytesPerLine;
        auto *pixels = reinterpret_cast<QRgb *>(first);
        const std::vector<CellMean> means = m_averager.row(cellRow);
        for (int cell = 0; cell < m_columns.count(); ++cell) {
            const float noise = CellNoise::grey(m_seed.value, m_columns.fromMiddle(cell), m_rows.fromMiddle(cellRow));
            std::fill(pixels + m_columns.start(cell), pixels + m_columns.start(cell + 1),
                colorOf(means[cell], m_opaque, noise));
        }
        for (int y = top + 1; y < bottom; ++y)
            std::memcpy(m_bits + y * m_bytesPerLine, first, std::size_t(m_columns.length()) * sizeof(QRgb));
    }

private:
    CellAxis m_columns, m_rows;
    CellAverager m_averager;
    bool m_opaque;
    ImageEffects::NoiseSeed m_seed;
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
    const CellPainter painter(region, std::min(cellSide, CellAxis::maxSide), seed, out);
    Parallel::forEach(painter.rowCount(), threads, [&](int row) { painter.paintRow(row); });
    return out;
}

} // namespace tessaly::Pixelation
