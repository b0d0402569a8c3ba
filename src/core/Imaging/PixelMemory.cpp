// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/PixelMemory.h"

#include "core/Base/Parallel.h"

#include <atomic>
#include <sys/mman.h>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace tessaly::PixelMemory {

static constexpr std::size_t hugePageBytes = std::size_t(2) << 20;

Bytes allocateBytes(std::size_t count)
{
    if (count < 2 * hugePageBytes)
        return Bytes(static_cast<uchar *>(std::malloc(std::max<std::size_t>(count, 1))));
    const std::size_t whole = (count + hugePageBytes - 1) / hugePageBytes * hugePageBytes;
    Bytes bytes(static_cast<uchar *>(std::aligned_alloc(hugePageBytes, whole)));
    // Advice only: without huge pages the memory works as well, more slowly.
    if (bytes)
        ::madvise(bytes.get(), count, MADV_HUGEPAGE);
    return bytes;
}

QImage allocate(QSize pixelSize, QImage::Format format)
{
    if (pixelSize.isEmpty())
        return {};
    const std::size_t bytesPerLine
        = (std::size_t(pixelSize.width()) * QImage::toPixelFormat(format).bitsPerPixel() / 8 + 3) / 4 * 4;
    const std::size_t count = bytesPerLine * std::size_t(pixelSize.height());
    if (count < 2 * hugePageBytes)
        return QImage(pixelSize, format);
    Bytes bytes = allocateBytes(count);
    if (!bytes)
        return {};
    uchar *memory = bytes.release();
    return QImage(memory, pixelSize.width(), pixelSize.height(), qsizetype(bytesPerLine), format, std::free, memory);
}

namespace {

/// The huge pages' worth of memory from `memory` to `end`.
struct Pieces {
    Pieces(uchar *memory, std::size_t count) :
        begin(reinterpret_cast<std::uintptr_t>(memory) / page * page),
        end(reinterpret_cast<std::uintptr_t>(memory) + count),
        count(static_cast<int>((end - begin + hugePageBytes - 1) / hugePageBytes))
    {
    }

    void populate([[maybe_unused]] int index) const
    {
#ifdef MADV_POPULATE_WRITE
        const std::uintptr_t from = begin + static_cast<std::uintptr_t>(index) * hugePageBytes;
        ::madvise(
            reinterpret_cast<void *>(from), std::min<std::uintptr_t>(hugePageBytes, end - from), MADV_POPULATE_WRITE);
#endif
    }

    static constexpr std::uintptr_t page = 4096;
    std::uintptr_t begin;
    std::uintptr_t end;
    int count;
};

} // namespace

void populate(uchar *memory, std::size_t count, int threads)
{
    const Pieces pieces(memory, count);
    Parallel::forEach(pieces.count, threads, [&](int piece) { pieces.populate(piece); });
}

void populateBeside(const std::function<void()> &fill, uchar *memory, std::size_t count, int threads)
{
    const Pieces pieces(memory, count);
    std::atomic<bool> isFilled = false;
    const auto fillAndStop = [&] {
        fill();
        isFilled = true;
    };
    // Two pieces are filled as soon as another thread has begun.
    Parallel::forEachBeside(fillAndStop, pieces.count, pieces.count > 2 ? threads : 1, [&](int piece) {
        if (!isFilled)
            pieces.populate(pieces.count - 1 - piece);
    });
}

void shareHeap()
{
#ifdef __GLIBC__
    ::mallopt(M_ARENA_MAX, 1);
#endif
}

void giveBack()
{
#ifdef __GLIBC__
    ::malloc_trim(0);
#endif
}

} // namespace tessaly::PixelMemory
