// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/Bounds.h"
#include "core/Imaging/ContinuousCorners.h"
#include "core/Imaging/ImageEffects.h"

#include <benchmark/benchmark.h>

#include <QPainter>

using namespace tessaly;

/// The shadow of a window of 1600 × 1200 pixels against filling the bitmap that holds it.
int main(int argc, char **argv)
{
    constexpr double blur = 80;
    const QRectF window(2 * blur, 2 * blur, 1600, 1200);
    const QSize size = (window.size() + QSizeF(4 * blur, 4 * blur)).toSize();
    QImage shape(size, QImage::Format_Grayscale8);
    shape.fill(0);
    QPainter painter(&shape);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousCornerPath(window, 24), Qt::white);
    painter.end();

    const auto measure = [](const char *name, auto work) {
        benchmark::RegisterBenchmark(name,
            [work](benchmark::State &state) {
                for (auto _ : state)
                    benchmark::DoNotOptimize(work());
            })
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond);
    };
    measure("fill", [=] {
        QImage bitmap(size, QImage::Format_Grayscale8);
        bitmap.fill(85);
        return bitmap;
    });
    measure("rectangle", [=] { return ImageEffects::rectangleShadow(size, window, blur); });
    measure("shaped", [=] { return ImageEffects::shapedShadow(shape, blur); });
    return bench::runWithBounds(argc, argv, { { "rectangle", "fill", 3 }, { "shaped", "fill", 60 } });
}
