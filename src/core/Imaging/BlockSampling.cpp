// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/BlockSampling.h"

#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <cstring>

namespace tessaly::BlockSampling {

using GaussianBlur::Outside;

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

/// Adds neighbouring pixels until one is left for each square of `side` pixels.
template <int channels>
void addNeighbours(Sample *sums, int squares, int side)
{
    // A pixel's channels are added as one word: no sum carries into the next channel.
    using Word = std::conditional_t<channels == 4, std::uint64_t, std::uint16_t>;
    for (int left = side / 2; left > 0; left /= 2) {
        for (int index = 0; index < squares * left; ++index) {
            Word pair[2];
            std::memcpy(pair, sums + 2 * index * channels, sizeof pair);
            const auto sum = static_cast<Word>(pair[0] + pair[1]);
            std::memcpy(sums + index * channels, &sum, sizeof sum);
        }
    }
}

/// `above` and `below` mixed by weights that add up to 65 536, or one less.
inline __attribute__((always_inline)) Sample mixed(Sample above, Sample below, Sample aboveWeight, Sample belowWeight)
{
    return static_cast<Sample>(static_cast<Sample>(std::uint32_t(above) * aboveWeight >> 16)
        + static_cast<Sample>(std::uint32_t(below) * belowWeight >> 16));
}

TESSALY_WIDE_VECTORS
void mixNeighbours(const Sample *first, const Sample *second, Sample firstWeight, Sample secondWeight, int count,
    Sample *__restrict out)
{
    for (int index = 0; index < count; ++index)
        out[index] = mixed(first[index], second[index], firstWeight, secondWeight);
}

TESSALY_WIDE_VECTORS
void mixToBytes(const Sample *first, const Sample *second, Sample firstWeight, Sample secondWeight, int count,
    uchar *__restrict out)
{
    for (int index = 0; index < count; ++index) {
        const Sample sample = mixed(first[index], second[index], firstWeight, secondWeight);
        out[index] = static_cast<uchar>(static_cast<Sample>(sample + 128) >> 8);
    }
}

/// A pixel row between the middles of two rows of blocks, of which the first is named.
struct Between {
    Between(int pixel, int side) :
        first((2 * pixel + 1 + side) / (2 * side)),
        secondWeight(static_cast<Sample>((2 * pixel + 1 + side) % (2 * side) * (32768 / side))),
        firstWeight(static_cast<Sample>(std::min(65536 - secondWeight, 65535)))
    {
    }

    int first;
    Sample secondWeight, firstWeight;
};

/// Deals `side` rows of pixels out in turn.
template <int channels, int side>
void interleave(const Sample *rows, int count, Sample *__restrict out)
{
    for (int index = 0; index < count; ++index, rows += channels, out += side * channels) {
        for (int row = 0; row < side; ++row)
            std::memcpy(out + row * channels, rows + row * count * channels, channels * sizeof(Sample));
    }
}

/// The most common sides get a loop that the compiler unrolls.
template <int channels>
void interleave(const Sample *rows, int side, int count, Sample *out)
{
    if (side == 2)
        return interleave<channels, 2>(rows, count, out);
    if (side == 4)
        return interleave<channels, 4>(rows, count, out);
    for (int row = 0; row < side; ++row, rows += count * channels) {
        for (int index = 0; index < count; ++index)
            std::memcpy(out + (index * side + row) * channels, rows + index * channels, channels * sizeof(Sample));
    }
}

/// Widens a row of means to `side` pixels for each interval between the middles of two blocks. `mixing` holds as much.
template <int channels>
void widen(const Sample *row, int intervals, int side, Sample *mixing, Sample *wide)
{
    const int count = intervals * channels;
    for (int pixel = 0; pixel < side; ++pixel) {
        const Between place(pixel + side / 2, side);
        mixNeighbours(row, row + channels, place.firstWeight, place.secondWeight, count, mixing + pixel * count);
    }
    interleave<channels>(mixing, side, intervals, wide);
}

} // namespace

double variance(int blockSide)
{
    // A mean over the block and, on the way back, a triangle twice as wide.
    const double square = double(blockSide) * blockSide;
    return blockSide == 1 ? 0 : (square - 1) / 12 + square / 6;
}

std::pair<int, int> Grid::rowsAround(int first, int end) const
{
    return { Between(first, side).first, Between(end - 1, side).first + 2 };
}

Shrinker::Shrinker(const QImage &image, const Grid &grid, Outside outside) :
    m_image(image),
    m_grid(grid),
    m_outside(outside),
    m_partSide(std::min(grid.side, 16)),
    m_sums(std::size_t(grid.columns()) * grid.side * grid.channels),
    m_totals(std::size_t(grid.columns()) * grid.channels)
{
}

/// The sums of `height` rows, at most `m_partSide`, over the pixel columns `from` to before `to`.
void Shrinker::sumRows(int top, int height, int from, int to, Sample *sums) const
{
    const int bottom = top + height, end = m_image.height(), bytes = (to - from) * m_grid.channels;
    std::fill_n(sums, bytes, Sample(0));
    const auto add = [&](int y, qsizetype step, int count) {
        if (count > 0)
            addRows(m_image.constScanLine(y) + qsizetype(from) * m_grid.channels, step, count, bytes, sums);
    };
    if (m_outside == Outside::Edge) {
        add(0, 0, std::min(bottom, 0) - top);
        add(end - 1, 0, bottom - std::max(top, end));
    }
    const int firstInside = std::clamp(top, 0, end - 1);
    add(firstInside, m_image.bytesPerLine(), std::min(bottom, end) - std::max(top, 0));
}

/// The same over the whole width with the border's blocks.
void Shrinker::sumAcross(int top, int height)
{
    const int width = m_image.width(), channels = m_grid.channels;
    const auto begin = m_sums.begin() + m_grid.side * channels, end = begin + width * channels;
    sumRows(top, height, 0, width, &*begin);
    const bool zero = m_outside == Outside::Nothing;
    for (auto pixel = m_sums.begin(); pixel < begin; pixel += channels)
        zero ? std::fill_n(pixel, channels, Sample(0)) : std::copy_n(begin, channels, pixel);
    for (auto pixel = end; pixel < m_sums.end(); pixel += channels)
        zero ? std::fill_n(pixel, channels, Sample(0)) : std::copy_n(end - channels, channels, pixel);
}

void Shrinker::shrinkRow(int row, Sample *means)
{
    const int channels = m_grid.channels, columns = m_grid.columns(), parts = m_grid.side / m_partSide;
    const auto addPixels = channels == 4 ? addNeighbours<4> : addNeighbours<1>;
    const int scale = 256 / (m_partSide * m_partSide), top = (row - 1) * m_grid.side;
    if (parts == 1) {
        sumAcross(top, m_partSide);
        addPixels(m_sums.data(), columns, m_partSide);
        for (std::size_t index = 0; index < m_totals.size(); ++index)
            means[index] = static_cast<Sample>(m_sums[index] * scale);
        return;
    }
    std::fill(m_totals.begin(), m_totals.end(), 0);
    for (int part = 0; part < parts; ++part) {
        sumAcross(top + part * m_partSide, m_partSide);
        addPixels(m_sums.data(), columns * parts, m_partSide);
        const Sample *sum = m_sums.data();
        for (int column = 0; column < columns * parts; ++column) {
            for (int channel = 0; channel < channels; ++channel)
                m_totals[column / parts * channels + channel] += *sum++;
        }
    }
    for (std::size_t index = 0; index < m_totals.size(); ++index)
        means[index] = static_cast<Sample>(m_totals[index] / (parts * parts));
}

void enlarge(const Grid &grid, int first, int end, const std::function<void(int, Sample *)> &readRow, uchar *bits,
    qsizetype bytesPerLine)
{
    const int columns = grid.columns(), channels = grid.channels, intervals = columns - 1;
    const int count = grid.pixelSize.width() * channels, margin = (grid.side - grid.side / 2) * channels;
    std::vector<Sample> row(std::size_t(columns) * channels);
    std::vector<Sample> above(std::size_t(intervals) * grid.side * channels), below(above.size()), mixing(above.size());
    const auto widenRow = channels == 4 ? widen<4> : widen<1>;
    int widened = Between(first, grid.side).first - 1;
    for (int y = first; y < end; ++y) {
        const Between place(y, grid.side);
        for (; widened <= place.first; ++widened) {
            above.swap(below);
            readRow(widened + 1, row.data());
            widenRow(row.data(), intervals, grid.side, mixing.data(), below.data());
        }
        mixToBytes(above.data() + margin, below.data() + margin, place.firstWeight, place.secondWeight, count,
            bits + y * bytesPerLine);
    }
}

} // namespace tessaly::BlockSampling
