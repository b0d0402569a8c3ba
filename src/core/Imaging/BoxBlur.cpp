// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/BoxBlur.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <vector>

namespace tessaly::BoxBlur {

using GaussianBlur::Outside;
using Sample = std::uint16_t;

namespace {

/// A box of any width: weight 1 up to `radius` samples from its middle and `edge`, below 1, for the next.
struct Box {
    int radius;
    float edge;
    float scale; ///< 1 ÷ the sum of the weights

    explicit Box(double variance) : radius(static_cast<int>((std::sqrt(1 + 12 * variance) - 1) / 2))
    {
        const double inner = radius * (radius + 1.0) / 3, next = (radius + 1.0) * (radius + 1.0);
        const double width = 2 * radius + 1, share = width * (variance - inner) / (2 * (next - variance));
        edge = static_cast<float>(share);
        scale = static_cast<float>(1 / (width + 2 * share));
    }

    int reach() const { return radius + 1; }
};

/// So many samples side by side are worked on together.
constexpr int laneCount = 16;

struct Lanes {
    float values[laneCount];
};

/// Blurs the rows of `in` from `first` to before `end`; it must hold `box.reach()` more on either side.
void boxRows(const Lanes *in, Lanes *out, int first, int end, const Box &box)
{
    Lanes sums {};
    for (int row = first - box.radius; row < first + box.radius; ++row) {
        for (int lane = 0; lane < laneCount; ++lane)
            sums.values[lane] += in[row].values[lane];
    }
    for (int row = first; row < end; ++row) {
        const float *entering = in[row + box.radius].values, *leaving = in[row - box.radius].values;
        const float *below = in[row + box.reach()].values, *above = in[row - box.reach()].values;
        for (int lane = 0; lane < laneCount; ++lane) {
            const float sum = sums.values[lane] + entering[lane];
            out[row].values[lane] = (sum + (below[lane] + above[lane]) * box.edge) * box.scale;
            sums.values[lane] = sum - leaving[lane];
        }
    }
}

/// A strip of `laneCount` samples: some rows of it are read with their surroundings, blurred and written.
class Strip {
public:
    Strip(const QImage &samples, Box box, Outside outside, int rows) :
        m_samples(samples),
        m_channels(samples.depth() / 16),
        m_box(box),
        m_outside(outside),
        m_margin(3 * box.reach()),
        m_rows(rows + 2 * m_margin),
        m_other(m_rows.size())
    {
    }

    void blur(QImage &transposed, uchar *bits, int firstColumn, int firstRow, int rowCount)
    {
        const int count = std::min(laneCount / m_channels, m_samples.width() - firstColumn);
        for (int row = 0; row < rowCount + 2 * m_margin; ++row)
            read(firstRow - m_margin + row, firstColumn * m_channels, count * m_channels, m_rows[row]);
        const int end = rowCount + 2 * m_margin, reach = m_box.reach();
        boxRows(m_rows.data(), m_other.data(), reach, end - reach, m_box);
        boxRows(m_other.data(), m_rows.data(), 2 * reach, end - 2 * reach, m_box);
        boxRows(m_rows.data(), m_other.data(), m_margin, end - m_margin, m_box);
        for (int row = 0; row < rowCount; ++row) {
            Sample rounded[laneCount];
            for (int lane = 0; lane < laneCount; ++lane)
                rounded[lane] = static_cast<Sample>(static_cast<int>(m_other[m_margin + row].values[lane] + 0.5f));
            const std::size_t bytes = m_channels * sizeof(Sample);
            for (int column = 0; column < count; ++column)
                std::memcpy(bits + (firstColumn + column) * transposed.bytesPerLine() + (firstRow + row) * bytes,
                    rounded + column * m_channels, bytes);
        }
    }

private:
    void read(int y, int firstSample, int count, Lanes &lanes) const
    {
        const int inside = std::clamp(y, 0, m_samples.height() - 1);
        if (y != inside && m_outside == Outside::Nothing)
            count = 0;
        Sample samples[laneCount] = {};
        std::memcpy(samples, reinterpret_cast<const Sample *>(m_samples.constScanLine(inside)) + firstSample,
            count * sizeof(Sample));
        for (int lane = 0; lane < laneCount; ++lane)
            lanes.values[lane] = samples[lane];
    }

    const QImage &m_samples;
    int m_channels;
    Box m_box;
    Outside m_outside;
    int m_margin;
    std::vector<Lanes> m_rows, m_other;
};

} // namespace

QImage columnsBlurred(const QImage &samples, double variance, Outside outside, int threads)
{
    // So many rows of a strip at a time: its two copies then stay within the processor's second cache.
    constexpr int rowsAtOnce = 512;
    QImage transposed = PixelMemory::allocate(samples.size().transposed(), samples.format());
    if (transposed.isNull())
        return {};
    const int columns = laneCount / (samples.depth() / 16), rows = std::min(rowsAtOnce, samples.height());
    const int strips = (samples.width() + columns - 1) / columns;
    uchar *bits = transposed.bits();
    Parallel::inBands(strips, 4 * threads, threads, [&](int firstStrip, int endStrip) {
        Strip strip(samples, Box(variance / 3), outside, rows);
        for (int index = firstStrip; index < endStrip; ++index) {
            for (int row = 0; row < samples.height(); row += rows)
                strip.blur(transposed, bits, index * columns, row, std::min(rows, samples.height() - row));
        }
    });
    return transposed;
}

} // namespace tessaly::BoxBlur
