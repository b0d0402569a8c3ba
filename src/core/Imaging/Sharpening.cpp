// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/Sharpening.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace tessaly {

namespace {

constexpr int radius = 2; // of the binomial 1 4 6 4 1 that stands for the Gaussian
constexpr int channels = 4;

using Sample = std::uint16_t;

/// The weighted sum of five rows, in sixteenths.
TESSALY_WIDE_VECTORS void sumDown(const std::array<const uchar *, 5> &rows, Sample *sums, int count)
{
    for (int index = 0; index < count; ++index) {
        const int outer = rows[0][index] + rows[4][index], inner = rows[1][index] + rows[3][index];
        sums[index] = Sample(outer + 4 * inner + 6 * rows[2][index]);
    }
}

/// Adds to the row `strength` / 256 of what differs from its surroundings; `sums` begins `radius` pixels before it.
TESSALY_WIDE_VECTORS void addDetail(
    const uchar *row, const Sample *sums, std::int16_t strength, uchar *target, int count)
{
    for (int index = 0; index < count; ++index) {
        const Sample *at = sums + index;
        const Sample outer = Sample(at[0] + at[4 * channels]), inner = Sample(at[channels] + at[3 * channels]);
        const Sample blurred = Sample(outer + 4 * inner + 6 * at[2 * channels]); // in 256ths: just fits
        const auto detail = std::int16_t((row[index] * 256 - blurred) >> 1);
        const int added = (((detail * strength) >> 14) + 1) >> 1;
        target[index] = uchar(std::clamp(row[index] + added, 0, 255));
    }
}

TESSALY_WIDE_VECTORS void keepOpaque(const QRgb *row, QRgb *target, int width)
{
    for (int x = 0; x < width; ++x)
        target[x] = (target[x] & 0x00ffffffu) | (row[x] & 0xff000000u);
}

/// No premultiplied component exceeds its alpha.
void keepAlpha(const QRgb *row, QRgb *target, int width)
{
    for (int x = 0; x < width; ++x) {
        const int alpha = qAlpha(row[x]);
        const auto limited = [alpha](int component) { return std::min(component, alpha); };
        target[x] = qRgba(limited(qRed(target[x])), limited(qGreen(target[x])), limited(qBlue(target[x])), alpha);
    }
}

void extendSides(Sample *sums, int width)
{
    Sample *first = sums + radius * channels, *last = first + (width - 1) * channels;
    for (int pixel = 1; pixel <= radius; ++pixel) {
        std::copy_n(first, channels, first - pixel * channels);
        std::copy_n(last, channels, last + pixel * channels);
    }
}

void sharpenRows(const QImage &image, std::int16_t strength, QImage &target, uchar *bits, int begin, int end)
{
    const int width = image.width(), count = width * channels;
    std::vector<Sample> sums(size_t(count) + 2 * radius * channels);
    for (int y = begin; y < end; ++y) {
        std::array<const uchar *, 5> rows;
        for (int offset = -radius; offset <= radius; ++offset)
            rows[size_t(offset + radius)] = image.constScanLine(std::clamp(y + offset, 0, image.height() - 1));
        sumDown(rows, sums.data() + radius * channels, count);
        extendSides(sums.data(), width);
        uchar *row = bits + y * target.bytesPerLine();
        addDetail(rows[radius], sums.data(), strength, row, count);
        const auto keep = image.format() == QImage::Format_RGB32 ? keepOpaque : keepAlpha;
        keep(reinterpret_cast<const QRgb *>(rows[radius]), reinterpret_cast<QRgb *>(row), width);
    }
}

} // namespace

QImage sharpened(const QImage &image, double amount, int threads, const Cancellation &cancellation)
{
    constexpr double most = 16;
    const double limited = std::isfinite(amount) ? std::clamp(amount, 0.0, most) : 0;
    const auto strength = static_cast<std::int16_t>(std::lround(limited * 256));
    if (strength == 0)
        return image;
    QImage target = PixelMemory::allocate(image.size(), image.format());
    if (target.isNull())
        return {};
    uchar *bits = target.bits();
    constexpr int rowsPerBand = 64;
    Parallel::inBands(image.height(), (image.height() + rowsPerBand - 1) / rowsPerBand,
        threads > 0 ? threads : Parallel::defaultThreadCount(), [&](int begin, int end) {
            if (!cancellation.isCancelled())
                sharpenRows(image, strength, target, bits, begin, end);
        });
    return cancellation.isCancelled() ? QImage() : target;
}

} // namespace tessaly
