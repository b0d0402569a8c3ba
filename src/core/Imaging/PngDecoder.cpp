// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/PngDecoder.h"

#include "core/Imaging/PixelMemory.h"
#include "core/Imaging/PngChunks.h"
#include "core/Imaging/PngRows.h"

#include <libdeflate.h>

#include <algorithm>
#include <cstring>
#include <memory>
#include <numeric>

namespace tessaly {

namespace {

/// How far beyond a row PngRows reads.
constexpr std::size_t slack = 4;

struct FreeDecompressor {
    void operator()(libdeflate_decompressor *decompressor) const { libdeflate_free_decompressor(decompressor); }
};

/// The parts as one run of bytes. Where there is one part, no byte is copied.
class Joined {
public:
    explicit Joined(const std::vector<QByteArrayView> &parts) : m_all(parts.front())
    {
        if (parts.size() == 1)
            return;
        const qsizetype size = std::accumulate(parts.begin(), parts.end(), qsizetype(0),
            [](qsizetype sum, QByteArrayView part) { return sum + part.size(); });
        m_copy = PixelMemory::allocateBytes(std::size_t(size));
        m_all = m_copy ? QByteArrayView(m_copy.get(), size) : QByteArrayView();
        if (!m_copy)
            return;
        uchar *to = m_copy.get();
        for (const QByteArrayView part : parts)
            to = std::copy_n(reinterpret_cast<const uchar *>(part.data()), part.size(), to);
    }

    QByteArrayView view() const { return m_all; }

private:
    PixelMemory::Bytes m_copy;
    QByteArrayView m_all;
};

/// Memory in which the packed rows become pixels: the rows are unpacked to its end and written as pixels from its start
/// on, which never reaches a row that is still to be read. Fresh memory costs as much as unpacking.
struct Workspace {
    std::size_t rowBytes; ///< of a row without the byte that names its filter
    std::size_t packed; ///< of all rows with that byte
    std::size_t pixels; ///< of the picture
    PixelMemory::Bytes memory = {};

    explicit Workspace(const PngChunks &png) :
        rowBytes(std::size_t(png.size.width()) * std::size_t(png.bytesPerPixel())),
        packed((rowBytes + 1) * std::size_t(png.size.height())),
        pixels(std::size_t(png.size.width()) * 4 * std::size_t(png.size.height()))
    {
    }

    uchar *row(int y) const
    {
        return memory.get() + (std::max(packed, pixels) - packed) + (rowBytes + 1) * std::size_t(y);
    }

    /// False when the data do not unpack to all rows, or there is no memory for them.
    bool unpack(const PngChunks &png)
    {
        const Joined data(png.data);
        const std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor(libdeflate_alloc_decompressor());
        // A short stream cannot unpack to so much, whatever the header says; no memory is asked for then.
        constexpr std::size_t mostRatio = 1100;
        if (!decompressor || packed / mostRatio > std::size_t(data.view().size()))
            return false;
        memory = PixelMemory::allocateBytes(std::max(packed, pixels));
        return memory
            && libdeflate_zlib_decompress(
                   decompressor.get(), data.view().data(), std::size_t(data.view().size()), row(0), packed, nullptr)
            == LIBDEFLATE_SUCCESS;
    }
};

/// The colours of all indices; those beyond the palette are never looked up.
std::vector<QRgb> premultiplied(const std::vector<QRgb> &palette)
{
    std::vector<QRgb> colors(palette.size());
    std::ranges::transform(palette, colors.begin(), [](QRgb color) { return qPremultiply(color); });
    return colors;
}

bool fromPalette(const uchar *row, const std::vector<QRgb> &colors, QRgb *target, int width)
{
    if (*std::max_element(row, row + width) >= colors.size())
        return false;
    std::transform(row, row + width, target, [&](uchar index) { return colors[index]; });
    return true;
}

bool writePixels(const PngChunks &png, const std::vector<QRgb> &colors, const uchar *row, QRgb *target)
{
    const int width = png.size.width();
    switch (png.color) {
    case PngChunks::Color::Grey:
        PngRows::fromGrey(row, target, width);
        return true;
    case PngChunks::Color::GreyAlpha:
        PngRows::fromGreyAlpha(row, target, width);
        return true;
    case PngChunks::Color::Rgb:
        PngRows::fromRgb(row, target, width);
        return true;
    case PngChunks::Color::Rgba:
        PngRows::fromRgba(row, target, width);
        return true;
    case PngChunks::Color::Palette:
        return fromPalette(row, colors, target, width);
    }
    return false;
}

} // namespace

QImage decodePng(QByteArrayView file, qint64 maxPixels)
{
    const auto png = PngChunks::read(file);
    if (!png || qint64(png->size.width()) * png->size.height() > maxPixels)
        return {};
    if (qint64(png->size.width()) * std::max(4, png->bytesPerPixel()) > std::numeric_limits<int>::max() - 1)
        return {};
    Workspace work(*png);
    if (!work.unpack(*png))
        return {};
    const std::vector<QRgb> colors = premultiplied(png->palette);
    const int width = png->size.width(), height = png->size.height();
    std::vector<uchar> row(work.rowBytes + slack), above(work.rowBytes + slack);
    auto *target = reinterpret_cast<QRgb *>(work.memory.get());
    for (int y = 0; y < height; ++y, target += width) {
        const uchar *packed = work.row(y);
        std::copy_n(packed + 1, work.rowBytes, row.data());
        if (!PngRows::unfilter(packed[0], row.data(), above.data(), int(work.rowBytes), png->bytesPerPixel())
            || !writePixels(*png, colors, row.data(), target))
            return {};
        row.swap(above);
    }
    const auto format = png->isOpaque() ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied;
    uchar *memory = work.memory.release();
    return QImage(memory, width, height, qsizetype(width) * 4, format, std::free, memory);
}

} // namespace tessaly
