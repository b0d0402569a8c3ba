// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/BlockSampling.h"

#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace tessaly::BlockSampling {

using GaussianBlur::Outside;
using Sample = SamplePlane::Sample;

namespace {

template <int lanes>
inline __attribute__((always_inline)) void addLanes(const uchar *bytes, qsizetype step, int count, Sample *sums)
{
    Sample added[lanes] = {};
    for (int row = 0; row < count; ++row, bytes += step) {
        for (int lane = 0; lane < lanes; ++lane)
            added[lane] = static_cast<Sample>(added[lane] + bytes[lane]);
    }
    for (int lane = 0; lane < lanes; ++lane)
        sums[lane] = static_cast<Sample>(sums[lane] + added[lane]);
}

/// Adds `count` rows of bytes that lie `step` bytes apart to sums of 16 bits, which hold 256 bytes each.
TESSALY_WIDE_VECTORS
void addRows(const uchar *first, qsizetype step, int count, int bytes, Sample *sums)
{
    constexpr int lanes = 32;
    int index = 0;
    for (; index + lanes <= bytes; index += lanes)
        addLanes<lanes>(first + index, step, count, sums + index);
    for (; index < bytes; ++index)
        addLanes<1>(first + index, step, count, sums + index);
}

/// The sums of the block row's pixels, one below the other, in the pixel columns `from` to before `to`.
void sumBlockRow(const QImage &image, const Grid &grid, Outside outside, int blockRow, int from, int to, Sample *sums)
{
    const int top = (blockRow - 1) * grid.side, bottom = top + grid.side, bytes = (to - from) * grid.channels;
    const int height = image.height();
    std::fill_n(sums, bytes, Sample(0));
    const auto add = [&](int y, qsizetype step, int count) {
        if (count > 0)
            addRows(image.constScanLine(y) + qsizetype(from) * grid.channels, step, count, bytes, sums);
    };
    const int firstInside = std::clamp(top, 0, height), endInside = std::clamp(bottom, 0, height);
    add(std::min(firstInside, height - 1), image.bytesPerLine(), endInside - firstInside);
    if (outside == Outside::Edge) {
        add(0, 0, std::min(firstInside, bottom) - top);
        add(height - 1, 0, bottom - std::max(endInside, top));
    }
}

/// Adds neighbouring pixels until one is left for each block.
template <int channels>
void addNeighbours(Sample *sums, int blocks, int side)
{
    // A pixel's channels are added as one word: no sum carries into the next channel.
    using Word = std::conditional_t<channels == 4, std::uint64_t, std::uint16_t>;
    for (int left = side / 2; left > 0; left /= 2) {
        for (int index = 0; index < blocks * left; ++index) {
            Word pair[2];
            std::memcpy(pair, sums + 2 * index * channels, sizeof pair);
            const auto sum = static_cast<Word>(pair[0] + pair[1]);
            std::memcpy(sums + index * channels, &sum, sizeof sum);
        }
    }
}

/// A row of the picture between two rows of blocks, and between two blocks, of which the first is named.
struct Between {
    Between(int pixel, int side) : first((2 * pixel + 1 + side) / (2 * side)), part((2 * pixel + 1 + side) % (2 * side))
    {
    }

    int first;
    int part; ///< of 2 · side parts of the way to the next
};

/// The pixels that lie `after` 65 536ths of the way from each sample to the next pixel's; 3 bits are left after the
/// point.
TESSALY_WIDE_VECTORS
void mixNeighbours(const Sample *first, const Sample *second, Sample after, int count, Sample *__restrict mixed)
{
    const auto before = static_cast<Sample>(65536 - after);
    for (int index = 0; index < count; ++index) {
        const auto sum = static_cast<Sample>(
            (std::uint32_t(first[index]) * before >> 16) + (std::uint32_t(second[index]) * after >> 16));
        mixed[index] = static_cast<Sample>(static_cast<Sample>(sum + 16) >> 5);
    }
}

/// Widens rows of block means to `side` pixels for each interval between two.
template <int channels>
class Widener {
public:
    explicit Widener(const Grid &grid) :
        m_side(grid.side),
        m_intervals(grid.columns() - 1),
        m_mixed(std::size_t(m_intervals) * channels)
    {
    }

    void widen(const Sample *row, Sample *wide)
    {
        if (m_side == 1) {
            for (int index = 0; index < m_intervals * channels; ++index)
                wide[index] = static_cast<Sample>((row[index] + 16) >> 5);
            return;
        }
        for (int pixel = 0; pixel < m_side; ++pixel) {
            const auto after = static_cast<Sample>((2 * pixel + 1) * (32768 / m_side));
            mixNeighbours(row, row + channels, after, m_intervals * channels, m_mixed.data());
            const Sample *from = m_mixed.data();
            Sample *to = wide + pixel * channels;
            const int step = m_side * channels;
            for (const Sample *end = from + m_intervals * channels; from < end; from += channels, to += step)
                std::memcpy(to, from, channels * sizeof(Sample));
        }
    }

private:
    int m_side, m_intervals;
    std::vector<Sample> m_mixed;
};

/// `below` counts for `part` 32nds.
TESSALY_WIDE_VECTORS
void mixRows(const Sample *above, const Sample *below, int part, int count, uchar *__restrict out)
{
    const auto aboveWeight = static_cast<Sample>(32 - part), belowWeight = static_cast<Sample>(part);
    for (int index = 0; index < count; ++index) {
        const auto mixed = static_cast<Sample>(above[index] * aboveWeight + below[index] * belowWeight + 128);
        out[index] = static_cast<uchar>(mixed >> 8);
    }
}

template <int channels>
void enlargeRows(const SamplePlane &means, const Grid &grid, uchar *bits, qsizetype bytesPerLine, int first, int end)
{
    Widener<channels> widener(grid);
    const int count = grid.pixelSize.width() * channels, margin = std::max(grid.side / 2, 1) * channels;
    const int firstRow = Between(first, grid.side).first;
    std::vector<Sample> above(std::size_t(grid.columns()) * grid.side * channels), below(above.size());
    int widened = firstRow - 1;
    for (int y = first; y < end; ++y) {
        const Between place(y, grid.side);
        for (; widened <= place.first; ++widened) {
            above.swap(below);
            widener.widen(means.row(widened + 1 - firstRow), below.data());
        }
        mixRows(
            above.data() + margin, below.data() + margin, place.part * 16 / grid.side, count, bits + y * bytesPerLine);
    }
}

} // namespace

double variance(int blockSide)
{
    // A mean over the block and, on the way back, a triangle twice as wide.
    const double square = blockSide * blockSide;
    return blockSide == 1 ? 0 : (square - 1) / 12 + square / 6;
}

std::pair<int, int> Grid::rowsAround(int first, int end) const
{
    return { Between(first, side).first, Between(end - 1, side).first + 2 };
}

void shrink(const QImage &image, const Grid &grid, Outside outside, SamplePlane &means, int first, int end)
{
    const int width = image.width(), channels = grid.channels, blocks = end - first;
    const int from = (first - 1) * grid.side, to = (end - 1) * grid.side;
    const int firstInside = std::clamp(from, 0, width), endInside = std::clamp(to, firstInside, width);
    const auto scale = static_cast<Sample>(256 / (grid.side * grid.side));
    const auto addPixels = channels == 4 ? addNeighbours<4> : addNeighbours<1>;
    std::vector<Sample> sums(std::size_t(to - from) * channels);
    Sample edge[4] = {};
    for (int row = 0; row < grid.rows(); ++row) {
        const auto continueEdge = [&](int pixel, int begin, int stop) {
            if (begin < stop && outside == Outside::Edge)
                sumBlockRow(image, grid, outside, row, pixel, pixel + 1, edge);
            for (int place = begin; place < stop; ++place)
                std::copy_n(edge, channels, sums.begin() + (place - from) * channels);
        };
        continueEdge(0, from, std::min(firstInside, to));
        sumBlockRow(image, grid, outside, row, firstInside, endInside, sums.data() + (firstInside - from) * channels);
        continueEdge(width - 1, std::max(endInside, from), to);
        addPixels(sums.data(), blocks, grid.side);
        Sample *out = means.row(row) + first * channels;
        for (int index = 0; index < blocks * channels; ++index)
            out[index] = static_cast<Sample>(sums[index] * scale);
    }
}

void enlarge(const SamplePlane &means, const Grid &grid, uchar *bits, qsizetype bytesPerLine, int first, int end)
{
    if (grid.channels == 4)
        enlargeRows<4>(means, grid, bits, bytesPerLine, first, end);
    else
        enlargeRows<1>(means, grid, bits, bytesPerLine, first, end);
}

} // namespace tessaly::BlockSampling
