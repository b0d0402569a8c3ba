// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/FreeMemory.h"

#include <cstddef>
#include <sys/mman.h>

namespace tessaly::bench::FreeMemory {

void bringAtHand()
{
    constexpr std::size_t size = std::size_t(512) << 20, page = 4096;
    void *memory = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return;
    ::madvise(memory, size, MADV_HUGEPAGE);
    for (std::size_t at = 0; at < size; at += page)
        static_cast<volatile char *>(memory)[at] = 1;
    ::munmap(memory, size);
}

} // namespace tessaly::bench::FreeMemory
