// SPDX-License-Identifier: GPL-3.0-or-later
// The picture that an editor shows: a mark that is dragged over a full screen against the first picture of the same
// marks, few marks against many, and what opening, scrolling and zooming cost against copying the pixels once.
#include "bench/support/Bounds.h"
#include "bench/support/CopyOnce.h"
#include "bench/support/MixedMarks.h"
#include "bench/support/Screens.h"
#include "core/Rendering/LiveCanvas.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>

using namespace tessaly;

namespace {

constexpr QSize screen { 3840, 2160 }, window { 1600, 1000 };

LiveScene sceneOf(int marks, double scale = 2)
{
    static const QImage pixels = bench::busyDesktop(screen);
    LiveScene scene;
    scene.image = { pixels, QSizeF(pixels.size()) / scale };
    scene.annotations = bench::mixedMarks(marks, scene.image.pointSize);
    return scene;
}

LiveView viewOf(QSize pixels, double scale, QPoint origin = {})
{
    return { pixels, scale, origin, Qt::gray, Qt::white, QColor(226, 226, 230) };
}

/// A mark of ordinary size in the place that `where` gives it in the list: 0 is the lowest, 1 the topmost.
qsizetype addDragged(LiveScene &scene, double where)
{
    Annotation mark(AnnotationKind::Rectangle, { 400, 300 }, { 700, 500 });
    mark.filled = true;
    const qsizetype index = qsizetype(where * double(scene.annotations.size()));
    scene.annotations.insert(index, mark);
    return index;
}

/// Drags along a curve that crosses the whole screen, some pixels a frame, as a hand does.
void drag(benchmark::State &state, int marks, double where)
{
    LiveScene scene = sceneOf(marks);
    const LiveView view = viewOf(screen, 2);
    const qsizetype dragged = addDragged(scene, where);
    const QPointF start = scene.annotations[dragged].p1;
    LiveCanvas canvas;
    canvas.update(scene, view);
    std::vector<double> times;
    int frame = 0;
    for ([[maybe_unused]] auto _ : state) {
        ++frame;
        const QPointF at(start.x() + 700 * std::sin(frame * 0.011), start.y() + 300 * std::sin(frame * 0.017));
        Annotation &mark = scene.annotations[dragged];
        mark.p2 += at - mark.p1;
        mark.p1 = at;
        QElapsedTimer timer;
        timer.start();
        benchmark::DoNotOptimize(canvas.update(scene, view).rectCount());
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    state.counters["median_ms"] = times[times.size() / 2];
    state.counters["p99_ms"] = times[times.size() * 99 / 100];
}

void first(benchmark::State &state, const LiveScene &scene, const LiveView &view)
{
    for ([[maybe_unused]] auto _ : state) {
        LiveCanvas canvas;
        benchmark::DoNotOptimize(canvas.update(scene, view).rectCount());
    }
}

/// `change(frame, scene, view)` before every frame.
template <class Change>
void frames(benchmark::State &state, LiveScene scene, LiveView view, Change change)
{
    LiveCanvas canvas;
    canvas.update(scene, view);
    int frame = 0;
    for ([[maybe_unused]] auto _ : state) {
        change(++frame, scene, view);
        benchmark::DoNotOptimize(canvas.update(scene, view).rectCount());
    }
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const auto add = [](const char *name, auto function) {
        return benchmark::RegisterBenchmark(name, function)->UseRealTime()->Unit(benchmark::kMillisecond);
    };
    constexpr double dragSeconds = 0.4; // as long as a short drag: its first frames make what later ones find
    const double fit = double(window.width()) / screen.width() * 2;
    LiveScene framed = sceneOf(50);
    framed.frame = FrameStyle();
    add("CopyOnce", [](benchmark::State &state) { bench::copyOnce(state, sceneOf(0).image.pixels); });
    for (const int marks : { 10, 200, 1000 }) {
        for (const auto &[place, where] : { std::pair("top", 1.0), std::pair("middle", 0.5) }) {
            add(qPrintable(QStringLiteral("Drag/%1/%2").arg(marks).arg(QLatin1StringView(place))),
                [=](benchmark::State &state) { drag(state, marks, where); })
                ->MinTime(dragSeconds);
        }
    }
    add("FirstFrame/window", [=](benchmark::State &state) { first(state, sceneOf(0), viewOf(window, fit)); });
    add("FirstFrame/200marks", [=](benchmark::State &state) { first(state, sceneOf(200), viewOf(screen, 2)); });
    add("Scroll", [](benchmark::State &state) {
        frames(state, sceneOf(200), viewOf(window, 2), [](int frame, LiveScene &, LiveView &view) {
            view.pixelOrigin
                = -QPoint(1000 + int(900 * std::sin(frame * 0.02)), 500 + int(400 * std::sin(frame * 0.03)));
        });
    });
    add("Zoom", [=](benchmark::State &state) {
        frames(state, sceneOf(200), viewOf(window, fit),
            [=](int frame, LiveScene &, LiveView &view) { view.pixelsPerPoint = fit * (1.5 + std::sin(frame * 0.1)); });
    });
    add("FrameStyle", [=](benchmark::State &state) {
        frames(state, framed, viewOf(window, fit * 0.8),
            [](int frame, LiveScene &scene, LiveView &) { scene.frame->cornerRadius = 20 + frame % 40; });
    });
    return bench::runWithBounds(argc, argv,
        { { "Drag/200/top", "FirstFrame/200marks", 0.15 }, { "Drag/200/middle", "FirstFrame/200marks", 0.15 },
            { "Drag/1000/top", "Drag/10/top", 1.5 }, { "FirstFrame/window", "CopyOnce", 8.0 } });
}
