// SPDX-License-Identifier: GPL-3.0-or-later
// A hundred edits of a screen of 3840×2160, all taken back and made again: what the process takes and how long a step
// does. The two bounds are absolute, for they are what people are promised, and memory has no other machine to be
// compared with.
#include "bench/support/Screens.h"
#include "core/Annotation/AnnotationStore.h"
#include "core/Preferences/Settings.h"

#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>

using namespace tessaly;

namespace {

constexpr int edits = 100;
constexpr double maxMebibytes = 400;
constexpr double maxMilliseconds = 60;

/// A line of a file of the process in MiB, by its first word.
double mebibytes(const char *path, const char *word)
{
    QFile file((QLatin1StringView(path)));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith(word))
            return line.simplified().split(' ')[1].toDouble() / 1024;
    }
    return 0;
}

void report(const char *stage)
{
    std::printf("%-22s %6.0f MiB now (proportional), %6.0f MiB at most (resident)\n", stage,
        mebibytes("/proc/self/smaps_rollup", "Pss:"), mebibytes("/proc/self/status", "VmHWM:"));
}

class Durations {
public:
    template <class Work>
    void measure(const Work &work)
    {
        QElapsedTimer timer;
        timer.start();
        work();
        m_milliseconds.push_back(double(timer.nsecsElapsed()) / 1e6);
    }

    double at(double share) const
    {
        std::vector<double> sorted = m_milliseconds;
        std::ranges::sort(sorted);
        return sorted[std::min(std::size_t(share * double(sorted.size())), sorted.size() - 1)];
    }

    void print(const char *name) const
    {
        std::printf(
            "%-22s %6.1f ms at the median, %6.1f in one of ten, %6.1f at most\n", name, at(0.5), at(0.9), at(1));
    }

private:
    std::vector<double> m_milliseconds;
};

} // namespace

int main()
{
    const Settings settings { QString() };
    AnnotationStore store(RasterImage::fromPixels(bench::busyDesktop()), settings);
    report("one capture");
    Durations edit, undo, redo;
    for (int count = 0; count < edits; ++count)
        edit.measure([&] { count % 2 == 0 ? store.rotate(true) : store.sharpen(0.5); });
    report("after the edits");
    while (store.canUndo())
        undo.measure([&] { store.undo(); });
    report("all taken back");
    const bool same = store.image().pixels == bench::busyDesktop();
    while (store.canRedo())
        redo.measure([&] { store.redo(); });
    const double peak = mebibytes("/proc/self/status", "VmHWM:");
    report("all made again");
    edit.print("an edit");
    undo.print("an undo");
    redo.print("a redo");
    const bool kept = same && peak > 0 && peak <= maxMebibytes && undo.at(0.5) <= maxMilliseconds;
    std::printf("\n%s  %.0f MiB (at most %.0f), %.1f ms (at most %.0f), the first picture %s\n",
        kept ? "kept  " : "BROKEN", peak, maxMebibytes, undo.at(0.5), maxMilliseconds, same ? "came back" : "is lost");
    return kept ? 0 : 1;
}
