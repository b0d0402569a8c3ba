// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/Bounds.h"
#include "bench/support/Screens.h"
#include "core/Export/PngEncoder.h"

#include <benchmark/benchmark.h>
#include <png.h>

#include <array>
#include <cstdio>
#include <cstdlib>

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

void append(png_structp png, png_bytep bytes, png_size_t count)
{
    static_cast<QByteArray *>(png_get_io_ptr(png))->append(reinterpret_cast<const char *>(bytes), qsizetype(count));
}

/// The usual way: libpng with zlib's level 6 and the filters that libpng takes by itself.
QByteArray encodeWithLibpng(const QImage &image)
{
    QByteArray file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    if (setjmp(png_jmpbuf(png)))
        std::abort();
    png_set_write_fn(png, &file, append, nullptr);
    png_set_compression_level(png, 6);
    png_set_IHDR(png, info, png_uint_32(image.width()), png_uint_32(image.height()), 8, PNG_COLOR_TYPE_RGB,
        PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_set_bgr(png);
    png_set_filler(png, 0, PNG_FILLER_AFTER);
    for (int row = 0; row < image.height(); ++row)
        png_write_row(png, image.constScanLine(row));
    png_write_end(png, info);
    png_destroy_write_struct(&png, &info);
    return file;
}

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
        addBenchmark(libpng, [image] { return encodeWithLibpng(image.pixels); });
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
