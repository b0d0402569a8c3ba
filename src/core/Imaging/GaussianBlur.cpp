// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/GaussianBlur.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/BlockSampling.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <vector>

namespace tessaly::GaussianBlur {

using BlockSampling::Grid;
using BlockSampling::Sample;

namespace {

/// 16 of the largest blocks; most pictures' sides are far shorter.
constexpr double largestRadius = 16.0 * BlockSampling::maxBlockSide;

/// The largest blocks that still leave the straight lines between them close to the Gaussian.
int blockSideFor(double radius, QSize size, Precision precision)
{
    const double blocksPerRadius = precision == Precision::Picture ? 3 : 1.5;
    // Larger ones would be too few to share among threads, and gain nothing: so few blocks are no work.
    constexpr int blocksToShare = 8;
    const int enough = std::min(BlockSampling::maxBlockSide, std::max(size.width(), size.height()) / blocksToShare);
    int side = 1;
    while (side < enough && 2 * side * blocksPerRadius <= radius)
        side *= 2;
    return side;
}

/// The weights of a Gaussian, 65 536 together. Its radius is in blocks.
std::vector<Sample> weightsFor(double radius)
{
    constexpr double reach = 3.3; // beyond it there is less than a thousandth
    constexpr double largest = 16; // only where that is twice the whole picture, and all is even
    radius = std::min(radius, largest);
    const int last = std::max(static_cast<int>(std::ceil(reach * radius)), 1);
    std::vector<double> shares;
    double sum = 0;
    for (int place = -last; place <= last; ++place)
        sum += shares.emplace_back(std::exp(-place * place / (2 * radius * radius)));
    std::vector<Sample> weights;
    double before = 0;
    for (const double share : shares) {
        // The rounding of one is made good by the next.
        const double upTo = before + share;
        const double weight = std::round(upTo / sum * 65536) - std::round(before / sum * 65536);
        weights.push_back(static_cast<Sample>(std::min(weight, 65535.0)));
        before = upTo;
    }
    return weights;
}

/// A row of samples and its weight.
struct WeightedRow {
    const Sample *samples;
    Sample weight;
};

inline __attribute__((always_inline)) Sample product(Sample sample, Sample weight)
{
    return static_cast<Sample>(std::uint32_t(sample) * weight >> 16);
}

TESSALY_WIDE_VECTORS
void addPair(const Sample *__restrict one, Sample oneWeight, const Sample *__restrict other, Sample otherWeight,
    qsizetype count, Sample *__restrict sums)
{
    for (qsizetype index = 0; index < count; ++index)
        sums[index]
            = static_cast<Sample>(sums[index] + product(one[index], oneWeight) + product(other[index], otherWeight));
}

/// The weighted sum of an odd number of rows. Integers throughout: no order of working can change a bit, and no colour
/// comes to exceed its alpha.
void sumRows(const std::vector<WeightedRow> &rows, qsizetype count, Sample *sums)
{
    // Each product loses half a bit on average.
    std::fill_n(sums, count, static_cast<Sample>(rows.size() / 2));
    for (std::size_t row = 0; row + 1 < rows.size(); row += 2)
        addPair(rows[row].samples, rows[row].weight, rows[row + 1].samples, rows[row + 1].weight, count, sums);
    addPair(rows.back().samples, rows.back().weight, rows.back().samples, 0, count, sums);
}

/// Some rows of a picture's blocks, softened across and then, as they are asked for, down.
class SoftBlocks {
public:
    /// Room for the rows of blocks `first` to before `end`, and those that these are softened with.
    SoftBlocks(const Grid &grid, Outside outside, const std::vector<Sample> &weights, int first, int end) :
        m_grid(grid),
        m_outside(outside),
        m_weights(weights),
        m_reach(static_cast<int>(weights.size() / 2)),
        m_first(std::max(first - m_reach, 0)),
        m_end(std::min(end + m_reach, grid.rows())),
        m_rowSamples(qsizetype(grid.columns()) * grid.channels),
        m_memory(PixelMemory::allocate({ grid.columns(), m_end - m_first },
            grid.channels == 4 ? QImage::Format_RGBA64 : QImage::Format_Grayscale16)),
        m_samples(m_memory.bits()),
        m_nothing(m_rowSamples)
    {
    }

    bool isNull() const { return m_memory.isNull(); }
    int first() const { return m_first; }
    int end() const { return m_end; }

    /// Fills the rows `first` to before `end` with blocks of the picture, softened across.
    void softenAcross(const QImage &image, int first, int end)
    {
        BlockSampling::Shrinker shrinker(image, m_grid, m_outside);
        const qsizetype margin = qsizetype(m_reach) * m_grid.channels;
        std::vector<Sample> padded(m_rowSamples + 2 * margin);
        std::vector<WeightedRow> places;
        for (std::size_t place = 0; place < m_weights.size(); ++place)
            places.push_back({ padded.data() + place * m_grid.channels, m_weights[place] });
        for (int row = first; row < end; ++row) {
            shrinker.shrinkRow(row, padded.data() + margin);
            if (m_outside == Outside::Edge)
                continueEdges(padded, margin);
            sumRows(places, m_rowSamples, rowAt(row));
        }
    }

    /// A row softened both ways.
    void read(int row, Sample *out) const
    {
        std::vector<WeightedRow> rows;
        rows.reserve(m_weights.size());
        for (const Sample weight : m_weights) {
            const int place = row - m_reach + static_cast<int>(rows.size());
            const int inside = std::clamp(place, 0, m_grid.rows() - 1);
            const bool empty = place != inside && m_outside == Outside::Nothing;
            rows.push_back({ empty ? m_nothing.data() : rowAt(inside), weight });
        }
        sumRows(rows, m_rowSamples, out);
    }

private:
    Sample *rowAt(int row) const
    {
        return reinterpret_cast<Sample *>(m_samples + (row - m_first) * m_memory.bytesPerLine());
    }

    void continueEdges(std::vector<Sample> &padded, qsizetype margin) const
    {
        const int channels = m_grid.channels;
        const auto first = padded.begin() + margin, last = padded.end() - margin - channels;
        for (qsizetype offset = 0; offset < margin; offset += channels) {
            std::copy_n(first, channels, padded.begin() + offset);
            std::copy_n(last, channels, last + channels + offset);
        }
    }

    const Grid &m_grid;
    Outside m_outside;
    const std::vector<Sample> &m_weights;
    int m_reach;
    int m_first, m_end;
    qsizetype m_rowSamples;
    QImage m_memory;
    uchar *m_samples;
    std::vector<Sample> m_nothing;
};

} // namespace

QImage blurred(const QImage &image, double pixelRadius, Outside outside, Precision precision, int threads)
{
    if (image.isNull() || !(pixelRadius > 0))
        return image;
    const double radius = std::min(pixelRadius, largestRadius);
    const Grid grid { image.size(), blockSideFor(radius, image.size(), precision), image.depth() / 8 };
    const double own = BlockSampling::variance(grid.side);
    const std::vector<Sample> weights = weightsFor(std::sqrt(radius * radius - own) / grid.side);
    QImage out = PixelMemory::allocate(image.size(), image.format());
    if (out.isNull())
        return {};

    uchar *bits = out.bits();
    const auto enlarge = [&](const SoftBlocks &blocks, int first, int end) {
        const auto readRow = [&blocks](int row, Sample *samples) { blocks.read(row, samples); };
        BlockSampling::enlarge(grid, first, end, readRow, bits, out.bytesPerLine());
    };
    const int reach = static_cast<int>(weights.size() / 2);
    if (2 * reach * threads > grid.rows()) {
        // Every thread needs nearly all rows of blocks: they make them together first.
        SoftBlocks blocks(grid, outside, weights, 0, grid.rows());
        if (blocks.isNull())
            return {};
        // In small bands, so that the first thread is well under way when the others have started.
        const int bands = 4 * threads;
        Parallel::inBands(
            grid.rows(), bands, threads, [&](int first, int end) { blocks.softenAcross(image, first, end); });
        Parallel::inBands(image.height(), bands, threads, [&](int first, int end) { enlarge(blocks, first, end); });
        return out;
    }
    // The threads share nothing, and shrink some rows twice: waiting for each other in the middle costs more.
    std::atomic<bool> complete = true;
    Parallel::inBands(image.height(), threads, threads, [&](int first, int end) {
        const auto [firstRow, endRow] = grid.rowsAround(first, end);
        SoftBlocks blocks(grid, outside, weights, firstRow, endRow);
        if (blocks.isNull()) {
            complete = false;
            return;
        }
        blocks.softenAcross(image, blocks.first(), blocks.end());
        enlarge(blocks, first, end);
    });
    return complete ? out : QImage();
}

} // namespace tessaly::GaussianBlur
