// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/RectangleShadow.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <vector>

namespace tessaly::RectangleShadow {

namespace {

/// How much of a pixel lies inside a blurred edge.
class BlurredEdge {
public:
    explicit BlurredEdge(double radius) : m_radius(radius), m_step(radius / stepsPerRadius)
    {
        if (radius < smallestTabled)
            return;
        m_table.resize(std::size_t(2 * end * stepsPerRadius) + 2);
        for (std::size_t index = 0; index < m_table.size(); ++index)
            m_table[index] = exact((double(index) - end * stepsPerRadius) * m_step);
    }

    /// For a pixel whose middle lies `distance` pixels inside the edge (negative: outside).
    double covered(double distance) const
    {
        if (m_table.empty())
            return exact(distance);
        const double place = std::clamp(distance / m_step + end * stepsPerRadius, 0.0, 2.0 * end * stepsPerRadius);
        const auto index = static_cast<std::size_t>(place);
        return std::lerp(m_table[index], m_table[index + 1], place - double(index));
    }

private:
    /// The mean of the normal distribution's sum over the pixel.
    double exact(double distance) const { return sumTo(distance + 0.5) - sumTo(distance - 0.5); }

    double sumTo(double distance) const
    {
        const double place = distance / m_radius;
        if (!(std::abs(place) < end))
            return std::max(distance, 0.0);
        return distance * std::erfc(-place / std::numbers::sqrt2) / 2
            + m_radius * std::exp(-place * place / 2) / std::sqrt(2 * std::numbers::pi);
    }

    static constexpr int end = 6; ///< radii from the edge to where nothing changes any more
    static constexpr int stepsPerRadius = 64; ///< straight lines between them are right to 1/100 of a level
    static constexpr double smallestTabled = 4; ///< below, there are fewer pixels than steps

    double m_radius;
    double m_step;
    std::vector<double> m_table;
};

/// The coverage along one axis, 65 280 where it is full: 16 bits with 8 after the point.
std::vector<std::uint16_t> profile(int length, double from, double to, const BlurredEdge &edge)
{
    std::vector<std::uint16_t> covered(length);
    for (int pixel = 0; pixel < length; ++pixel) {
        const double middle = pixel + 0.5;
        const double share = edge.covered(middle - from) - edge.covered(middle - to);
        covered[pixel] = static_cast<std::uint16_t>(std::lround(std::clamp(share, 0.0, 1.0) * 65280));
    }
    return covered;
}

void fillRow(const std::vector<std::uint16_t> &across, std::uint16_t down, uchar *row)
{
    // 65 535 stands for 1: a full row must not lose a level.
    const std::uint32_t factor = down + down / 256;
    const std::uint16_t *covered = across.data();
    for (std::size_t x = 0, count = across.size(); x < count; ++x)
        row[x] = static_cast<uchar>(((covered[x] * factor >> 16) + 128) >> 8);
}

} // namespace

QImage coverage(QSize pixelSize, const QRectF &pixelRect, double pixelRadius, int threads)
{
    constexpr double farAway = 1e7, largestRadius = 1e6;
    QImage out = PixelMemory::allocate(pixelSize, QImage::Format_Grayscale8);
    if (out.isNull())
        return {};
    const BlurredEdge edge(pixelRadius > 0 ? std::min(pixelRadius, largestRadius) : 0);
    const QRectF rect = pixelRect.normalized();
    const auto near = [&](double place) { return std::isnan(place) ? 0 : std::clamp(place, -farAway, farAway); };
    const auto across = profile(pixelSize.width(), near(rect.left()), near(rect.right()), edge);
    const auto down = profile(pixelSize.height(), near(rect.top()), near(rect.bottom()), edge);
    uchar *bits = out.bits();
    Parallel::inBands(pixelSize.height(), 4 * threads, threads, [&](int first, int end) {
        for (int y = first; y < end; ++y) {
            uchar *row = bits + y * out.bytesPerLine();
            if (y > first && down[y] == down[y - 1])
                std::memcpy(row, row - out.bytesPerLine(), across.size());
            else
                fillRow(across, down[y], row);
        }
    });
    return out;
}

} // namespace tessaly::RectangleShadow
