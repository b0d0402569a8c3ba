// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/PixelMemory.h"

#include <cstdlib>
#include <sys/mman.h>

namespace tessaly::PixelMemory {

QImage allocate(QSize pixelSize, QImage::Format format)
{
    constexpr size_t hugePageBytes = size_t(2) << 20;
    if (pixelSize.isEmpty())
        return {};
    const size_t bytesPerLine
        = (size_t(pixelSize.width()) * QImage::toPixelFormat(format).bitsPerPixel() / 8 + 3) / 4 * 4;
    const size_t bytes = bytesPerLine * size_t(pixelSize.height());
    if (bytes < 2 * hugePageBytes)
        return QImage(pixelSize, format);
    void *memory = std::aligned_alloc(hugePageBytes, (bytes + hugePageBytes - 1) / hugePageBytes * hugePageBytes);
    if (!memory)
        return {};
    // Advice only: without huge pages the memory works as well, more slowly.
    ::madvise(memory, bytes, MADV_HUGEPAGE);
    return QImage(static_cast<uchar *>(memory), pixelSize.width(), pixelSize.height(), qsizetype(bytesPerLine), format,
        std::free, memory);
}

} // namespace tessaly::PixelMemory
