// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/Resampling.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tessaly {

namespace {

constexpr int channels = 4;

/// The cubic of Catmull and Rom: it passes through the pixels and overshoots little.
double cubic(double distance)
{
    const double x = std::abs(distance);
    if (x < 1)
        return (1.5 * x - 2.5) * x * x + 1;
    return x < 2 ? ((-0.5 * x + 2.5) * x - 4) * x + 2 : 0;
}

/// The pixels that one pixel of the result is made of, from `first` on, and their shares.
struct Taps {
    int first = 0;
    std::vector<float> shares;
};

/// Along one axis. Where it shrinks, the cubic is as many times wider; what lies beyond the picture does not count.
Taps tapsOf(int position, int length, int newLength)
{
    const double ratio = double(length) / newLength, width = std::max(ratio, 1.0);
    const double centre = (position + 0.5) * ratio - 0.5;
    const int first = std::max(int(std::ceil(centre - 2 * width)), 0);
    const int last = std::min(int(std::floor(centre + 2 * width)), length - 1);
    std::vector<double> weights;
    double total = 0;
    for (int index = first; index <= last; ++index) {
        weights.push_back(cubic((index - centre) / width));
        total += weights.back();
    }
    Taps taps { first, {} };
    for (const double weight : weights)
        taps.shares.push_back(float(weight / total));
    return taps;
}

std::vector<Taps> axisTaps(int length, int newLength)
{
    std::vector<Taps> taps;
    taps.reserve(size_t(newLength));
    for (int position = 0; position < newLength; ++position)
        taps.push_back(tapsOf(position, length, newLength));
    return taps;
}

TESSALY_WIDE_VECTORS void addRow(const uchar *row, float share, float *sums, int count)
{
    for (int index = 0; index < count; ++index)
        sums[index] += share * float(row[index]);
}

uchar rounded(float value, int most) { return uchar(std::clamp(int(std::floor(value + 0.5f)), 0, most)); }

/// One row of the result out of the sums of its source rows.
void gather(const std::vector<Taps> &columns, const float *sums, bool opaque, QRgb *target)
{
    for (const Taps &taps : columns) {
        float pixel[channels] = {};
        const float *from = sums + qptrdiff(taps.first) * channels;
        for (const float share : taps.shares) {
            for (int channel = 0; channel < channels; ++channel)
                pixel[channel] += share * from[channel];
            from += channels;
        }
        const int alpha = opaque ? 255 : rounded(pixel[3], 255);
        *target++ = qRgba(rounded(pixel[2], alpha), rounded(pixel[1], alpha), rounded(pixel[0], alpha), alpha);
    }
}

} // namespace

QImage resampled(const QImage &image, QSize size, int threads, const Cancellation &cancellation)
{
    if (size == image.size())
        return image;
    QImage target = PixelMemory::allocate(size, image.format());
    if (target.isNull() || image.isNull())
        return {};
    const bool opaque = image.format() == QImage::Format_RGB32;
    const std::vector<Taps> columns = axisTaps(image.width(), size.width());
    uchar *bits = target.bits();
    const int count = image.width() * channels;
    Parallel::inBands(size.height(), (size.height() + 31) / 32, threads > 0 ? threads : Parallel::defaultThreadCount(),
        [&](int begin, int end) {
            std::vector<float> sums(static_cast<size_t>(count));
            for (int y = begin; y < end && !cancellation.isCancelled(); ++y) {
                std::ranges::fill(sums, 0.0f);
                const Taps rows = tapsOf(y, image.height(), size.height());
                for (size_t index = 0; index < rows.shares.size(); ++index)
                    addRow(image.constScanLine(rows.first + int(index)), rows.shares[index], sums.data(), count);
                gather(columns, sums.data(), opaque, reinterpret_cast<QRgb *>(bits + y * target.bytesPerLine()));
            }
        });
    return cancellation.isCancelled() ? QImage() : target;
}

} // namespace tessaly
