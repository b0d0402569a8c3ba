// SPDX-License-Identifier: GPL-3.0-or-later
// Opening PNG files of 3840×2160 as libpng and as Tessaly write them, beside Qt's reader.
#include "bench/support/Bounds.h"
#include "bench/support/Libpng.h"
#include "bench/support/Screens.h"
#include "core/Export/PngEncoder.h"
#include "core/Imaging/ImageReading.h"

#include <benchmark/benchmark.h>

using namespace tessaly;

namespace {

template <class Read>
void addBenchmark(const std::string &name, Read read)
{
    benchmark::RegisterBenchmark(name.c_str(),
        [read](benchmark::State &state) {
            for ([[maybe_unused]] auto _ : state) {
                const QImage picture = read();
                if (picture.width() != 3840)
                    state.SkipWithError("the picture was not read");
            }
        })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char **argv)
{
    const QImage desktop = bench::busyDesktop(), photo = bench::photoLike();
    const QImage withAlpha = desktop.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const std::vector<std::pair<std::string, QByteArray>> files {
        { "desktop/libpng6", bench::libpngLevel6(desktop) },
        { "photo/libpng6", bench::libpngLevel6(photo) },
        { "desktop/tessaly", *PngEncoder::encode(RasterImage::fromPixels(desktop), {}) },
        { "desktopWithAlpha/tessaly", *PngEncoder::encode(RasterImage::fromPixels(withAlpha), {}) },
    };
    std::vector<bench::Bound> bounds;
    for (const auto &[name, file] : files) {
        addBenchmark(name + "/QImage",
            [file = file] { return QImage::fromData(file, "png").convertToFormat(QImage::Format_RGB32); });
        addBenchmark(name + "/readImage", [file = file] { return readImage(file, QStringLiteral("x"))->pixels; });
        bounds.push_back({ name + "/readImage", name + "/QImage", 0.6 });
    }
    return bench::runWithBounds(argc, argv, bounds);
}
