// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <benchmark/benchmark.h>

#include <QImage>

#include <cstring>

namespace tessaly::bench {

/// Copies a picture's pixels into memory that is warm: what any work on all of them is measured against.
inline void copyOnce(benchmark::State &state, const QImage &from)
{
    QImage to = from.copy();
    uchar *bits = to.bits();
    for ([[maybe_unused]] auto _ : state) {
        std::memcpy(bits, from.constBits(), size_t(from.sizeInBytes()));
        benchmark::ClobberMemory();
    }
}

} // namespace tessaly::bench
