// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/Bounds.h"
#include "bench/support/Libpng.h"
#include "bench/support/Screens.h"
#include "core/Export/PngEncoder.h"

#include <benchmark/benchmark.h>

#include <array>

using namespace tessaly;

namespace {

struct Screen {
    const char *name;
    QImage (*make)(QSize);
    double maxBytes; ///< of ours, against libpng's
};

constexpr std::array<Screen, 3> screens { {
    { "busyDesktop", bench::busyDesktop, 1.06 },
    { "photoLike", bench::photoLike, 1.10 },
    { "flatInterface", bench::flatInterface, 1.06 },
} };

template <class Encode>
void addBenchmark(const std::string &name, Encode encode)
{
    benchmark::RegisterBenchmark(name.c_str(),
        [encode](benchmark::State &state) {
            qsizetype bytes = 0;
            for ([[maybe_unused]] auto _ : state)
                bytes = encode().size();
            state.counters["bytes"] = double(bytes);
        })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    std::vector<bench::Bound> bounds;
    for (const Screen &screen : screens) {
        const RasterImage image = RasterImage::fromPixels(screen.make({ 3840, 2160 }));
        const std::string name = screen.name;
        const std::string libpng = name + "/libpng6";
        addBenchmark(libpng, [image] { return bench::libpngLevel6(image.pixels); });
        for (const auto &[threads, maxTime] : { std::pair { 1, 0.20 }, std::pair { 2, 0.12 } }) {
            const std::string subject = name + "/threads" + std::to_string(threads);
            addBenchmark(
                subject, [image, threads = threads] { return *PngEncoder::encode(image, { .threads = threads }); });
            bounds.push_back({ subject, libpng, maxTime });
        }
        bounds.push_back({ name + "/threads1", libpng, screen.maxBytes, "bytes" });
    }
    return bench::runWithBounds(argc, argv, bounds);
}
