// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/CellMeans.h"

#include "core/Base/Parallel.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tessaly {

CellAxis::CellAxis(int length, double side) :
    m_length(length),
    m_side(side),
    m_blurRadius(std::llround(side / 2)),
    m_firstIndex(static_cast<qint64>(std::floor((1 - length) / (2 * side) + 0.5))),
    m_count(1)
{
    // Division and multiplication may round to different sides of a pixel's centre.
    while (start(0) > 0)
        --m_firstIndex;
    while (start(m_count) < length)
        ++m_count;
}

qint64 CellAxis::start(int cell) const
{
    const double border = m_length / 2.0 + (static_cast<double>(m_firstIndex + cell) - 0.5) * m_side;
    return static_cast<qint64>(std::ceil(border - 0.5));
}

int CellAxis::startInside(int cell) const { return static_cast<int>(std::clamp<qint64>(start(cell), 0, m_length)); }

qint64 CellAxis::weightOfCell(int cell) const { return (start(cell + 1) - start(cell)) * (2 * m_blurRadius + 1); }

/// How often the pixels up to `position` are used, were the picture endless: the twofold sum of the blur's box and the
/// cell's box.
qint64 CellAxis::weightUpTo(int cell, qint64 position) const
{
    const auto triangle = [](qint64 side) { return side > 0 ? side * (side + 1) / 2 : 0; };
    const qint64 first = start(cell), end = start(cell + 1);
    return triangle(position + m_blurRadius + 1 - first) - triangle(position + m_blurRadius + 1 - end)
        - triangle(position - m_blurRadius - first) + triangle(position - m_blurRadius - end);
}

double CellAxis::share(int cell, int position) const
{
    const qint64 upTo = position == m_length - 1 ? weightOfCell(cell) : weightUpTo(cell, position);
    const qint64 before = position == 0 ? 0 : weightUpTo(cell, position - 1);
    return static_cast<double>(upTo - before) / static_cast<double>(weightOfCell(cell));
}

std::array<int, 2> CellAxis::reach(int cell) const
{
    const auto inside = [this](qint64 position) { return static_cast<int>(std::clamp<qint64>(position, 0, m_length)); };
    return { std::min(inside(start(cell) - m_blurRadius), m_length - 1),
        std::max(inside(start(cell + 1) + m_blurRadius), 1) };
}

namespace {

/// One number for each of a pixel's channels.
template <class Number>
struct Channels {
    Number values[4];

    static Channels of(const uchar *pixel) { return { pixel[0], pixel[1], pixel[2], pixel[3] }; }

    Channels &operator+=(const Channels &other)
    {
        for (int channel = 0; channel < 4; ++channel)
            values[channel] += other.values[channel];
        return *this;
    }

    /// `factor` times `other` is added.
    void addScaled(const Channels &other, Number factor)
    {
        for (int channel = 0; channel < 4; ++channel)
            values[channel] += other.values[channel] * factor;
    }
};

/// Twofold running sums of a run of pixels in which the sum over any trapezoid is four look-ups. They wrap around;
/// the differences are right as long as they fit `Sum` themselves: 32 bits do for cells of up to some 2 900 pixels.
template <class Sum>
class TwofoldSums {
public:
    using Sums = Channels<Sum>;

    explicit TwofoldSums(int first, int end) : m_first(first), m_count(end - first), m_twofold(m_count + 1) { }

    void read(const uchar *row)
    {
        const uchar *pixel = row + qsizetype(4) * m_first;
        Sums once {}, twice {};
        m_left = Sums::of(pixel);
        m_twofold[0] = twice;
        for (int index = 0; index < m_count; ++index, pixel += 4) {
            once += Sums::of(pixel);
            twice += once;
            m_twofold[index + 1] = twice;
        }
        m_all = once;
        m_right = Sums::of(pixel - 4);
    }

    /// The sum over the pixels first … end − 1 of the sums over `radius` pixels on either side.
    Sums trapezoid(qint64 first, qint64 end, qint64 radius) const
    {
        Sums sums = upTo(end + radius);
        sums.addScaled(upTo(first + radius), Sum(-1));
        sums.addScaled(upTo(end - radius - 1), Sum(-1));
        sums += upTo(first - radius - 1);
        return sums;
    }

private:
    Sums upTo(qint64 position) const
    {
        const qint64 index = position - m_first;
        if (index >= 0 && index <= m_count)
            return m_twofold[index];
        Sums sums {};
        if (index < 0) {
            sums.addScaled(m_left, static_cast<Sum>(index * (index + 1) / 2));
            return sums;
        }
        const qint64 beyond = index - m_count;
        sums = m_twofold[m_count];
        sums.addScaled(m_all, static_cast<Sum>(beyond));
        sums.addScaled(m_right, static_cast<Sum>(beyond * (beyond + 1) / 2));
        return sums;
    }

    int m_first, m_count;
    std::vector<Sums> m_twofold;
    Sums m_all, m_left, m_right;
};

/// The shares of every pixel row in the rows of cells that it touches.
struct RowShares {
    std::array<int, 2> reach;
    std::vector<float> shares;
};

std::vector<RowShares> sharesOf(const CellAxis &rows)
{
    std::vector<RowShares> all(rows.count());
    for (int cell = 0; cell < rows.count(); ++cell) {
        all[cell].reach = rows.reach(cell);
        for (int y = all[cell].reach[0]; y < all[cell].reach[1]; ++y)
            all[cell].shares.push_back(static_cast<float>(rows.share(cell, y)));
    }
    return all;
}

/// Adds up the columns of cells from `first` to before `end`.
template <class Sum>
void addColumns(const QImage &image, const CellAxis &columns, const std::vector<RowShares> &rows, int first, int end,
    std::vector<CellMean> &means)
{
    TwofoldSums<Sum> sums(columns.reach(first)[0], columns.reach(end - 1)[1]);
    std::vector<Channels<float>> rowMeans(end - first);
    std::vector<Channels<float>> totals(rows.size() * rowMeans.size());
    std::size_t firstRow = 0;
    for (int y = 0; y < image.height(); ++y) {
        sums.read(image.constScanLine(y));
        for (int cell = first; cell < end; ++cell) {
            const auto sum = sums.trapezoid(columns.start(cell), columns.start(cell + 1), columns.blurRadius());
            const float scale = 1 / static_cast<float>(columns.weightOfCell(cell));
            for (int channel = 0; channel < 4; ++channel)
                rowMeans[cell - first].values[channel] = static_cast<float>(sum.values[channel]) * scale;
        }
        while (rows[firstRow].reach[1] <= y)
            ++firstRow;
        for (std::size_t row = firstRow; row < rows.size() && rows[row].reach[0] <= y; ++row) {
            const float share = rows[row].shares[y - rows[row].reach[0]];
            for (std::size_t cell = 0; cell < rowMeans.size(); ++cell)
                totals[row * rowMeans.size() + cell].addScaled(rowMeans[cell], share);
        }
    }
    for (std::size_t row = 0; row < rows.size(); ++row) {
        CellMean *out = means.data() + row * columns.count() + first;
        std::memcpy(out, totals.data() + row * rowMeans.size(), rowMeans.size() * sizeof(CellMean));
    }
}

} // namespace

std::vector<CellMean> cellMeans(const QImage &image, const CellAxis &columns, const CellAxis &rows, int threads)
{
    std::vector<CellMean> means(std::size_t(columns.count()) * rows.count());
    const std::vector<RowShares> shares = sharesOf(rows);
    const qint64 largest = 255 * columns.weightOfCell(0);
    const auto add = largest < qint64(1) << 31 ? addColumns<std::uint32_t> : addColumns<std::uint64_t>;
    Parallel::inBands(
        columns.count(), threads, threads, [&](int first, int end) { add(image, columns, shares, first, end, means); });
    return means;
}

} // namespace tessaly
