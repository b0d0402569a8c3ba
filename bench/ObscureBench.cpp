// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/Bounds.h"
#include "bench/support/Screens.h"
#include "core/Imaging/ImageEffects.h"

#include <benchmark/benchmark.h>

#include <cstring>

using namespace tessaly;

/// Hiding an area of a screen, at every strength, against copying it.
int main(int argc, char **argv)
{
    const QSize area(1000, 600);
    const QImage region = bench::busyDesktop().copy(QRect(QPoint(1300, 700), area));
    QImage target(area, region.format());
    constexpr double pixelsPerPoint = 1;
    const auto seed = ImageEffects::NoiseSeed::random();

    const auto measure = [](const std::string &name, auto work) {
        benchmark::RegisterBenchmark(name.c_str(),
            [work](benchmark::State &state) {
                for (auto _ : state)
                    work();
            })
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond);
    };
    measure("copy", [&] {
        std::memcpy(target.bits(), region.constBits(), std::size_t(region.sizeInBytes()));
        benchmark::ClobberMemory();
    });
    std::vector<bench::Bound> bounds;
    for (const char *strength : { "0.05", "0.25", "0.5", "1", "2", "4" }) {
        const double value = std::strtod(strength, nullptr);
        const std::string pixelate = std::string("pixelate/") + strength, blur = std::string("blur/") + strength;
        measure(pixelate,
            [=, &region] { benchmark::DoNotOptimize(ImageEffects::pixelated(region, value, pixelsPerPoint, seed)); });
        measure(blur, [=, &region] { benchmark::DoNotOptimize(ImageEffects::obscuringBlur(region, value)); });
        bounds.push_back({ pixelate, "copy", 6 });
        bounds.push_back({ blur, "copy", 6 });
    }
    return bench::runWithBounds(argc, argv, bounds);
}
