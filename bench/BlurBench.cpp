// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/Bounds.h"
#include "bench/support/Screens.h"
#include "core/Imaging/ImageEffects.h"

#include <benchmark/benchmark.h>

#include <cstring>

using namespace tessaly;

/// Softening a whole screen against copying it.
int main(int argc, char **argv)
{
    const QImage screen = bench::busyDesktop();
    QImage target(screen.size(), screen.format());
    target.fill(Qt::black);

    benchmark::RegisterBenchmark("copy",
        [&](benchmark::State &state) {
            for (auto _ : state) {
                std::memcpy(target.bits(), screen.constBits(), std::size_t(screen.sizeInBytes()));
                benchmark::ClobberMemory();
            }
        })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
    for (const int radius : { 2, 12, 125, 1000 }) {
        const std::string name = "gaussian/" + std::to_string(radius);
        benchmark::RegisterBenchmark(name.c_str(),
            [&screen, radius](benchmark::State &state) {
                for (auto _ : state)
                    benchmark::DoNotOptimize(ImageEffects::gaussianBlur(screen, radius));
            })
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond);
    }
    return bench::runWithBounds(argc, argv, { { "gaussian/125", "copy", 16 }, { "gaussian/1000", "copy", 16 } });
}
