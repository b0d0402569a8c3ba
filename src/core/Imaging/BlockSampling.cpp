// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/BlockSampling.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <vector>

namespace tessaly::BlockSampling {

using GaussianBlur::Outside;
using Sample = std::uint16_t;

namespace {

int channelsOf(const QImage &image)
{
    return image.depth() / (image.depth() > 32 || image.format() == QImage::Format_Grayscale16 ? 16 : 8);
}

int blocksOver(int length, int side) { return (length + side - 1) / side + 2; }

/// Sums of blocks within one row of blocks. 16 bits hold the sum of 16 × 16 bytes.
template <int channels>
class BlockRow {
public:
    BlockRow(int width, int side, Outside outside) :
        m_width(width),
        m_side(side),
        m_outside(outside),
        m_count(blocksOver(width, side)),
        m_sums(std::size_t(m_count) * side * channels)
    {
    }

    void clear() { std::fill(m_sums.begin(), m_sums.end(), Sample(0)); }

    void add(const uchar *row)
    {
        Sample *sums = m_sums.data() + m_side * channels;
        const int count = m_width * channels;
        for (int index = 0; index < count; ++index)
            sums[index] = static_cast<Sample>(sums[index] + row[index]);
    }

    /// Writes the means of the blocks; the sums are used up.
    void finish(Sample *means)
    {
        if (m_outside == Outside::Edge)
            continueEdges();
        int count = m_count * m_side;
        for (int side = m_side; side > 1; side /= 2)
            addNeighbours(count /= 2);
        const auto scale = static_cast<Sample>(256 / (m_side * m_side));
        for (int index = 0; index < m_count * channels; ++index)
            means[index] = static_cast<Sample>(m_sums[index] * scale);
    }

private:
    void continueEdges()
    {
        const auto copy = [this](int from, int to) {
            std::copy_n(m_sums.begin() + from * channels, channels, m_sums.begin() + to * channels);
        };
        for (int pixel = 0; pixel < m_side; ++pixel)
            copy(m_side, pixel);
        for (int pixel = m_side + m_width; pixel < m_count * m_side; ++pixel)
            copy(m_side + m_width - 1, pixel);
    }

    void addNeighbours(int count)
    {
        // A pixel's channels are added as one word: no sum carries into the next channel.
        using Word = std::conditional_t<channels == 4, std::uint64_t, std::uint16_t>;
        Sample *sums = m_sums.data();
        for (int index = 0; index < count; ++index) {
            Word pair[2];
            std::memcpy(pair, sums + 2 * index * channels, sizeof pair);
            const auto sum = static_cast<Word>(pair[0] + pair[1]);
            std::memcpy(sums + index * channels, &sum, sizeof sum);
        }
    }

    int m_width, m_side;
    Outside m_outside;
    int m_count;
    std::vector<Sample> m_sums;
};

template <int channels>
void shrinkRows(const QImage &image, int side, Outside outside, QImage &samples, int first, int end)
{
    BlockRow<channels> blocks(image.width(), side, outside);
    for (int block = first; block < end; ++block) {
        blocks.clear();
        for (int offset = 0; offset < side; ++offset) {
            const int y = (block - 1) * side + offset, inside = std::clamp(y, 0, image.height() - 1);
            if (outside == Outside::Edge || y == inside)
                blocks.add(image.constScanLine(inside));
        }
        blocks.finish(reinterpret_cast<Sample *>(samples.bits() + block * samples.bytesPerLine()));
    }
}

/// Draws pixels between samples: `position` counts half pixels from the middle of sample 0.
struct Between {
    Between(int pixel, int side) : first((2 * pixel + 1 + side) / (2 * side)), part((2 * pixel + 1 + side) % (2 * side))
    {
    }

    int first; ///< the sample before; the one after is the next
    int part; ///< of 2 · side parts of the way
};

/// One row between two rows of samples, with 3 bits after the point.
void mixRows(const Sample *above, const Sample *below, int part, int side, int count, Sample *row)
{
    const std::uint32_t belowWeight = 65536 / (2 * side) * part, aboveWeight = 65536 - belowWeight;
    for (int index = 0; index < count; ++index) {
        const std::uint32_t mixed = (above[index] * aboveWeight >> 16) + (below[index] * belowWeight >> 16);
        row[index] = static_cast<Sample>((mixed + 16) >> 5);
    }
}

/// Widens a row of samples to `side` pixels for each interval between two of them; 8 bits after the point.
template <int channels, int side>
void widenRow(const Sample *row, int intervals, Sample *wide)
{
    for (int interval = 0; interval < intervals; ++interval, row += channels, wide += side * channels) {
        for (int pixel = 0; pixel < side; ++pixel) {
            const int after = (2 * pixel + 1) * (16 / side), before = 32 - after;
            for (int channel = 0; channel < channels; ++channel)
                wide[pixel * channels + channel]
                    = static_cast<Sample>(row[channel] * before + row[channel + channels] * after + 128);
        }
    }
}

void narrow(const Sample *wide, int count, uchar *out)
{
    for (int index = 0; index < count; ++index)
        out[index] = static_cast<uchar>(wide[index] >> 8);
}

template <int channels, int side>
void enlargeRows(const QImage &samples, uchar *out, qsizetype bytesPerLine, int width, int first, int end)
{
    const int count = samples.width() * channels;
    std::vector<Sample> row(count), wide(std::size_t(count) * side);
    for (int y = first; y < end; ++y) {
        const Between place(y, side);
        mixRows(reinterpret_cast<const Sample *>(samples.constScanLine(place.first)),
            reinterpret_cast<const Sample *>(samples.constScanLine(place.first + 1)), place.part, side, count,
            row.data());
        widenRow<channels, side>(row.data(), samples.width() - 1, wide.data());
        narrow(wide.data() + side / 2 * channels, width * channels, out + y * bytesPerLine);
    }
}

/// Blocks of one pixel: only the border and the bits after the point go.
template <int channels>
void roundRows(const QImage &samples, uchar *out, qsizetype bytesPerLine, int width, int first, int end)
{
    for (int y = first; y < end; ++y) {
        const auto *row = reinterpret_cast<const Sample *>(samples.constScanLine(y + 1)) + channels;
        for (int index = 0; index < width * channels; ++index)
            out[y * bytesPerLine + index] = static_cast<uchar>((row[index] + 128) >> 8);
    }
}

template <int channels>
auto enlargerFor(int side)
{
    constexpr decltype(&roundRows<channels>) bySide[] = { roundRows<channels>, enlargeRows<channels, 2>,
        enlargeRows<channels, 4>, enlargeRows<channels, 8>, enlargeRows<channels, 16> };
    return bySide[std::countr_zero(static_cast<unsigned>(side))];
}

} // namespace

double variance(int blockSide)
{
    // A mean over the block and, on the way back, a triangle twice as wide.
    const double square = blockSide * blockSide;
    return blockSide == 1 ? 0 : (square - 1) / 12 + square / 6;
}

QImage shrunk(const QImage &image, int blockSide, Outside outside, int threads)
{
    const int channels = channelsOf(image);
    const QSize size(blocksOver(image.width(), blockSide), blocksOver(image.height(), blockSide));
    QImage samples = PixelMemory::allocate(size, channels == 4 ? QImage::Format_RGBA64 : QImage::Format_Grayscale16);
    if (samples.isNull())
        return {};
    const auto shrink = channels == 4 ? shrinkRows<4> : shrinkRows<1>;
    Parallel::inBands(size.height(), 4 * threads, threads,
        [&](int first, int end) { shrink(image, blockSide, outside, samples, first, end); });
    return samples;
}

QImage enlarged(const QImage &samples, int blockSide, QSize size, QImage::Format format, int threads)
{
    QImage out = PixelMemory::allocate(size, format);
    if (out.isNull() || samples.isNull())
        return {};
    const auto enlarge = channelsOf(samples) == 4 ? enlargerFor<4>(blockSide) : enlargerFor<1>(blockSide);
    uchar *bits = out.bits();
    Parallel::inBands(size.height(), 4 * threads, threads,
        [&](int first, int end) { enlarge(samples, bits, out.bytesPerLine(), size.width(), first, end); });
    return out;
}

} // namespace tessaly::BlockSampling
