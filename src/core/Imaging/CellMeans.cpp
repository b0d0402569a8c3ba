// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/CellMeans.h"

#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

CellAxis::CellAxis(int length, double side) :
    m_length(length),
    m_side(side),
    m_firstIndex(static_cast<qint64>(std::floor((1 - length) / (2 * side) + 0.5))),
    m_count(1)
{
    // Division and multiplication may round to different sides of a pixel's centre.
    while (border(0) > 0)
        --m_firstIndex;
    while (border(m_count) < length)
        ++m_count;
}

qint64 CellAxis::border(int cell) const
{
    const double place = m_length / 2.0 + (static_cast<double>(m_firstIndex + cell) - 0.5) * m_side;
    return static_cast<qint64>(std::ceil(place - 0.5));
}

int CellAxis::start(int cell) const { return static_cast<int>(std::clamp<qint64>(border(cell), 0, m_length)); }

CellWeights CellAxis::weights(int cell) const
{
    const qint64 first = border(cell), end = border(cell + 1), radius = std::llround(m_side / 2);
    const auto triangle = [](qint64 side) { return side > 0 ? side * (side + 1) / 2 : 0; };
    // How often the pixels up to a position are used, were the picture endless: the cell's box over the blur's box.
    const auto upTo = [&](qint64 position) {
        return triangle(position + radius + 1 - first) - triangle(position + radius + 1 - end)
            - triangle(position - radius - first) + triangle(position - radius - end);
    };
    const auto inside = [this](qint64 position) { return std::clamp<qint64>(position, 0, m_length - 1); };
    const auto from = static_cast<int>(inside(first - radius)), to = static_cast<int>(inside(end + radius - 1));

    CellWeights result { from, {}, (end - first) * (2 * radius + 1) };
    result.weights.reserve(std::size_t(to - from + 1));
    qint64 before = 0;
    for (int position = from; position <= to; ++position) {
        const qint64 sum = position == to ? result.total : upTo(position);
        result.weights.push_back(sum - before);
        before = sum;
    }
    return result;
}

namespace {

/// A run of rows whose weights rise or fall evenly.
struct EvenRun {
    std::size_t count = 1;
    qint64 weight = 0; ///< of its first row
    qint64 slope = 0;

    /// The longest run from `first` on whose sums of sums of bytes fit 16 bits.
    static EvenRun from(const std::vector<qint64> &weights, std::size_t first)
    {
        constexpr std::size_t maxCount = 22;
        EvenRun run { 1, weights[first], 0 };
        for (std::size_t next = first + 1; next < weights.size() && run.count < maxCount; ++next, ++run.count) {
            const qint64 step = weights[next] - weights[next - 1];
            if (run.count == 1)
                run.slope = step;
            else if (step != run.slope)
                break;
        }
        return run;
    }
};

/// A run of rows as its kernel reads it: `onceFactor` applies to their sum, `twiceFactor` to the sum of their running
/// sums. The two together give every row its weight.
struct RowRun {
    const uchar *first;
    qsizetype bytesPerLine;
    std::size_t count;
    float onceFactor, twiceFactor;
};

template <int lanes>
inline __attribute__((always_inline)) void addLanes(const RowRun &run, qsizetype offset, float *totals)
{
    std::uint16_t once[lanes] = {}, twice[lanes] = {};
    const uchar *bytes = run.first + offset;
    for (std::size_t row = 0; row < run.count; ++row, bytes += run.bytesPerLine) {
        for (int lane = 0; lane < lanes; ++lane) {
            once[lane] = static_cast<std::uint16_t>(once[lane] + bytes[lane]);
            twice[lane] = static_cast<std::uint16_t>(twice[lane] + once[lane]);
        }
    }
    for (int lane = 0; lane < lanes; ++lane)
        totals[offset + lane] += run.onceFactor * once[lane] + run.twiceFactor * twice[lane];
}

TESSALY_WIDE_VECTORS
void addRows(const RowRun &run, qsizetype bytes, float *totals)
{
    constexpr int lanes = 32;
    qsizetype offset = 0;
    for (; offset + lanes <= bytes; offset += lanes)
        addLanes<lanes>(run, offset, totals);
    for (; offset < bytes; offset += 4)
        addLanes<4>(run, offset, totals);
}

/// Sums the pixels in two halves, so that one addition need not wait for another.
CellMean weightedMean(const std::vector<float> &shares, const float *pixels)
{
    constexpr int lanes = 8;
    float sums[lanes] = {};
    const std::size_t pairs = shares.size() / 2;
    const float *share = shares.data();
    for (std::size_t pair = 0; pair < pairs; ++pair, share += 2, pixels += lanes) {
        for (int lane = 0; lane < lanes; ++lane)
            sums[lane] += share[lane / 4] * pixels[lane];
    }
    CellMean mean {};
    for (int channel = 0; channel < 4; ++channel) {
        const float last = shares.size() % 2 == 0 ? 0 : *share * pixels[channel];
        mean[channel] = sums[channel] + sums[channel + 4] + last;
    }
    return mean;
}

} // namespace

CellAverager::CellAverager(const QImage &image, const CellAxis &columns, const CellAxis &rows) :
    m_image(image),
    m_rows(rows)
{
    for (int cell = 0; cell < columns.count(); ++cell) {
        const CellWeights weights = columns.weights(cell);
        ColumnShares &shares = m_columns.emplace_back();
        shares.first = weights.first;
        for (const qint64 weight : weights.weights)
            shares.shares.push_back(static_cast<float>(double(weight) / double(weights.total)));
    }
}

std::vector<float> CellAverager::rowsAdded(const CellWeights &rows) const
{
    const qsizetype bytes = qsizetype(4) * m_image.width();
    std::vector<float> totals(bytes);
    for (std::size_t index = 0; index < rows.weights.size();) {
        const EvenRun run = EvenRun::from(rows.weights, index);
        // Row k of n counts n − k times in the running sums, so their share is taken off again.
        const double once = double(run.weight + run.slope * qint64(run.count)) / double(rows.total);
        const double twice = -double(run.slope) / double(rows.total);
        const uchar *first = m_image.constScanLine(rows.first + int(index));
        addRows({ first, m_image.bytesPerLine(), run.count, float(once), float(twice) }, bytes, totals.data());
        index += run.count;
    }
    return totals;
}

std::vector<CellMean> CellAverager::row(int cellRow) const
{
    const std::vector<float> pixels = rowsAdded(m_rows.weights(cellRow));
    std::vector<CellMean> means(m_columns.size());
    for (std::size_t cell = 0; cell < means.size(); ++cell)
        means[cell] = weightedMean(m_columns[cell].shares, pixels.data() + std::ptrdiff_t(4) * m_columns[cell].first);
    return means;
}

} // namespace tessaly
