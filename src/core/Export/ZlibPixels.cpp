// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/ZlibPixels.h"

#include "core/Base/Parallel.h"
#include "core/Export/RowCompressor.h"

#include <libdeflate.h>
#include <zlib.h>

#include <QtEndian>

#include <algorithm>
#include <atomic>

namespace tessaly {

namespace {

// What is compressed on its own: it stays in a core's cache, and there are enough of them to keep all cores at work.
constexpr int bytesPerPart = 512 * 1024;

struct Part {
    QByteArray stream;
    uint32_t checksum = 1;
    qint64 rawBytes = 0;
};

Part compressPart(const PixelRows &rows, int first, int end, RowCompressor &compressor, std::vector<uint8_t> &scratch)
{
    Part part;
    part.rawBytes = static_cast<qint64>(end - first) * rows.bytesPerRow();
    const std::span raw(scratch.data(), static_cast<size_t>(part.rawBytes));
    rows.write(first, end, scratch.data());
    part.checksum = libdeflate_adler32(1, raw.data(), raw.size());
    compressor.compress(raw, part.stream);
    return part;
}

std::vector<Part> compressParts(const PixelRows &rows, int threads)
{
    const int rowsPerPart = std::clamp(bytesPerPart / rows.bytesPerRow(), 1, rows.rowCount());
    const int count = (rows.rowCount() + rowsPerPart - 1) / rowsPerPart;
    std::vector<Part> parts(static_cast<size_t>(count));
    const int workers = std::min(threads > 0 ? threads : Parallel::defaultThreadCount(), count);
    std::atomic<int> next = 0;
    // One index per worker and not per part, so that each keeps its memory from part to part.
    Parallel::forEach(workers, workers, [&](int) {
        RowCompressor compressor(rows.bytesPerPixel(), rows.bytesPerRow());
        std::vector<uint8_t> scratch(static_cast<size_t>(rowsPerPart) * static_cast<size_t>(rows.bytesPerRow()));
        for (int index = next++; index < count; index = next++) {
            const int first = index * rowsPerPart;
            const int end = std::min(first + rowsPerPart, rows.rowCount());
            parts[static_cast<size_t>(index)] = compressPart(rows, first, end, compressor, scratch);
        }
    });
    return parts;
}

} // namespace

std::vector<QByteArray> zlibPixels(const PixelRows &rows, int threads)
{
    std::vector<Part> parts = compressParts(rows, threads);
    uLong checksum = 1;
    std::vector<QByteArray> pieces;
    for (Part &part : parts) {
        checksum = adler32_combine(checksum, part.checksum, static_cast<z_off_t>(part.rawBytes));
        pieces.push_back(std::move(part.stream));
    }
    pieces.front().prepend("\x78\x01", 2); // DEFLATE with a window of 32 KiB, made for speed
    QByteArray ending = DeflateBlock::end() + QByteArray(4, '\0');
    qToBigEndian(static_cast<quint32>(checksum), ending.data() + ending.size() - 4);
    pieces.back().append(ending);
    return pieces;
}

} // namespace tessaly
