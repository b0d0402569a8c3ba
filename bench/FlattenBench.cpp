// SPDX-License-Identifier: GPL-3.0-or-later
// Burning marks into a full screen, against copying its pixels once. Nothing is kept between two rounds: each lays out
// its texts, decodes its pictures and computes its obscured areas again.
#include "bench/support/Bounds.h"
#include "bench/support/CopyOnce.h"
#include "bench/support/MixedMarks.h"
#include "bench/support/Screens.h"
#include "core/Base/Parallel.h"
#include "core/Rendering/FrameComposition.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

using namespace tessaly;

namespace {

constexpr double scale = 2;

FrameComposition compositionOf(const QList<Annotation> &marks)
{
    FrameComposition composition;
    static const QImage screen = bench::busyDesktop();
    composition.image = RasterImage { screen, QSizeF(screen.size()) / scale };
    composition.layout = FrameLayout(composition.image.pointSize, std::nullopt, scale);
    composition.content.imageSize = composition.image.pointSize;
    composition.content.source = composition.image;
    composition.content.annotations = marks;
    return composition;
}

void flatten(benchmark::State &state, const QList<Annotation> &marks, int threads)
{
    for ([[maybe_unused]] auto _ : state) {
        const FrameComposition composition = compositionOf(marks);
        benchmark::DoNotOptimize(composition.rendered(scale, threads).constBits());
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QList<Annotation> marks = bench::mixedMarks(100, QSizeF(1920, 1080));
    const auto add = [](const char *name, auto function) {
        benchmark::RegisterBenchmark(name, function)->UseRealTime()->Unit(benchmark::kMillisecond);
    };
    add("CopyOnce", [](benchmark::State &state) { bench::copyOnce(state, compositionOf({}).image.pixels); });
    add("Flatten100/defaultThreads",
        [&](benchmark::State &state) { flatten(state, marks, Parallel::defaultThreadCount()); });
    add("Flatten100/oneThread", [&](benchmark::State &state) { flatten(state, marks, 1); });
    add("FlattenNone/defaultThreads",
        [&](benchmark::State &state) { flatten(state, {}, Parallel::defaultThreadCount()); });
    for (const auto &kind : enumNames<AnnotationKind>) {
        QList<Annotation> ofKind;
        for (const Annotation &mark : marks)
            if (mark.kind == kind.value)
                ofKind += mark;
        add(qPrintable(QStringLiteral("FlattenOnly/") + kind.raw),
            [ofKind](benchmark::State &state) { flatten(state, ofKind, Parallel::defaultThreadCount()); });
    }
    return bench::runWithBounds(argc, argv, { { "Flatten100/defaultThreads", "CopyOnce", 8.0 } });
}
