// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/PackedPicture.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"
#include "core/Imaging/WideVectors.h"

#include <libdeflate.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <numeric>

namespace tessaly {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr int rowsPerBand = 64;
constexpr std::uint8_t asItIs = 0, lessTheRowAbove = 1; // the byte before each row

template <auto free>
struct Free {
    void operator()(auto *object) const { free(object); }
};
using Compressor = std::unique_ptr<libdeflate_compressor, Free<libdeflate_free_compressor>>;
using Decompressor = std::unique_ptr<libdeflate_decompressor, Free<libdeflate_free_decompressor>>;

struct Layout {
    int width;
    int channels;
    int rows; ///< of the band

    std::size_t bytesPerRow() const { return std::size_t(width) * std::size_t(channels); }
    std::size_t bytes() const { return (bytesPerRow() + 1) * std::size_t(rows); }
};

TESSALY_WIDE_VECTORS void dropAlpha(const QRgb *row, std::uint8_t *target, int width)
{
    for (int x = 0; x < width; ++x) {
        target[3 * x] = std::uint8_t(row[x]);
        target[3 * x + 1] = std::uint8_t(row[x] >> 8);
        target[3 * x + 2] = std::uint8_t(row[x] >> 16);
    }
}

TESSALY_WIDE_VECTORS void addAlpha(const std::uint8_t *row, QRgb *target, int width)
{
    for (int x = 0; x < width; ++x)
        target[x] = 0xff000000u | QRgb(row[3 * x + 2]) << 16 | QRgb(row[3 * x + 1]) << 8 | row[3 * x];
}

TESSALY_WIDE_VECTORS void subtract(const std::uint8_t *row, const std::uint8_t *above, std::uint8_t *target, int count)
{
    for (int index = 0; index < count; ++index)
        target[index] = std::uint8_t(row[index] - above[index]);
}

TESSALY_WIDE_VECTORS void add(const std::uint8_t *above, std::uint8_t *row, int count)
{
    for (int index = 0; index < count; ++index)
        row[index] = std::uint8_t(row[index] + above[index]);
}

/// How far the bytes are from 0, which is about what they cost.
TESSALY_WIDE_VECTORS int magnitude(const std::uint8_t *row, int count)
{
    int sum = 0;
    for (int index = 0; index < count; ++index)
        sum += std::min(int(row[index]), 256 - row[index]);
    return sum;
}

TESSALY_WIDE_VECTORS bool isOpaque(const QRgb *row, int width)
{
    QRgb all = 0xff000000u;
    for (int x = 0; x < width; ++x)
        all &= row[x];
    return all >= 0xff000000u;
}

bool isOpaque(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        if (!isOpaque(reinterpret_cast<const QRgb *>(image.constScanLine(y)), image.width()))
            return false;
    }
    return true;
}

/// Writes the rows from `first` on, each after the byte that says how it is to be read. `current` and `above` have room
/// for a row.
void writeRows(const QImage &image, int first, const Layout &layout, Bytes &current, Bytes &above, std::uint8_t *target)
{
    const int count = int(layout.bytesPerRow());
    std::ranges::fill(above, std::uint8_t(0));
    for (int y = first; y < first + layout.rows; ++y, target += count + 1) {
        const uchar *row = image.constScanLine(y);
        if (layout.channels == 3)
            dropAlpha(reinterpret_cast<const QRgb *>(row), current.data(), layout.width);
        else
            std::copy_n(row, count, current.data());
        subtract(current.data(), above.data(), target + 1, count);
        *target = lessTheRowAbove;
        if (magnitude(current.data(), count) <= magnitude(target + 1, count)) {
            *target = asItIs;
            std::ranges::copy(current, target + 1);
        }
        std::swap(current, above);
    }
}

/// The reverse. `rows` are changed into the rows as they were.
void readRows(std::uint8_t *rows, const Layout &layout, int first, uchar *bits, qsizetype bytesPerLine)
{
    const int count = int(layout.bytesPerRow());
    for (int y = 0; y < layout.rows; ++y, rows += count + 1) {
        std::uint8_t *row = rows + 1;
        if (*rows == lessTheRowAbove && y > 0)
            add(row - count - 1, row, count);
        uchar *target = bits + (first + y) * bytesPerLine;
        if (layout.channels == 3)
            addAlpha(row, reinterpret_cast<QRgb *>(target), layout.width);
        else
            std::copy_n(row, count, target);
    }
}

} // namespace

std::optional<PackedPicture> PackedPicture::pack(const QImage &image, const Cancellation &cancellation)
{
    constexpr int fastest = 1;
    const bool known = image.format() == QImage::Format_RGB32 || image.format() == QImage::Format_ARGB32_Premultiplied;
    const Compressor compressor(libdeflate_alloc_compressor(fastest));
    if (!known || !compressor)
        return std::nullopt;
    PackedPicture packed;
    packed.m_size = image.size();
    packed.m_format = image.format();
    packed.m_channels = isOpaque(image) ? 3 : 4;
    Layout layout { image.width(), packed.m_channels, rowsPerBand };
    Bytes current(layout.bytesPerRow()), above(layout.bytesPerRow()), rows(layout.bytes());
    Bytes stream(libdeflate_deflate_compress_bound(compressor.get(), layout.bytes()));
    for (int first = 0; first < image.height(); first += rowsPerBand) {
        if (cancellation.isCancelled())
            return std::nullopt;
        layout.rows = std::min(rowsPerBand, image.height() - first);
        writeRows(image, first, layout, current, above, rows.data());
        const std::size_t bytes
            = libdeflate_deflate_compress(compressor.get(), rows.data(), layout.bytes(), stream.data(), stream.size());
        packed.m_bands.emplace_back(reinterpret_cast<const char *>(stream.data()), qsizetype(bytes));
    }
    return packed;
}

QImage PackedPicture::unpacked(int threads) const
{
    QImage image = PixelMemory::allocate(m_size, m_format);
    if (image.isNull())
        return {};
    uchar *bits = image.bits();
    const qsizetype bytesPerLine = image.bytesPerLine();
    const int bands = int(m_bands.size());
    const int workers = std::min(threads > 0 ? threads : Parallel::defaultThreadCount(), bands);
    std::atomic<int> next = 0;
    std::atomic<bool> complete = true;
    // One index per worker and not per band, so that each keeps its memory from band to band.
    Parallel::forEach(workers, workers, [&](int) {
        const Decompressor decompressor(libdeflate_alloc_decompressor());
        Layout layout { m_size.width(), m_channels, rowsPerBand };
        Bytes rows(layout.bytes());
        for (int band = next++; band < bands; band = next++) {
            const QByteArray &stream = m_bands[std::size_t(band)];
            layout.rows = std::min(rowsPerBand, m_size.height() - band * rowsPerBand);
            if (!decompressor
                || libdeflate_deflate_decompress(decompressor.get(), stream.constData(), std::size_t(stream.size()),
                       rows.data(), layout.bytes(), nullptr)
                    != LIBDEFLATE_SUCCESS)
                complete = false;
            else
                readRows(rows.data(), layout, band * rowsPerBand, bits, bytesPerLine);
        }
    });
    return complete ? image : QImage();
}

qint64 PackedPicture::byteCount() const
{
    return std::accumulate(m_bands.begin(), m_bands.end(), qint64(0),
        [](qint64 sum, const QByteArray &band) { return sum + band.size(); });
}

} // namespace tessaly
