// SPDX-License-Identifier: GPL-3.0-or-later
// Recording captures of 3840×2160 into a history of a thousand, and following an editor with such a capture: for how
// long the main thread is held, which answers to the user meanwhile. The limits are absolute, for they are what people
// are promised.
#include "bench/support/GeneratedHistory.h"
#include "bench/support/Limits.h"
#include "bench/support/Screens.h"
#include "core/Annotation/AnnotationStore.h"
#include "core/Base/Clock.h"
#include "core/History/CaptureHistory.h"
#include "core/Preferences/Settings.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QTemporaryDir>
#include <QThread>

using namespace tessaly;

namespace {

constexpr int repetitions = 15;
constexpr double maxHeldMilliseconds = 5;

double millisecondsSince(const QElapsedTimer &timer) { return double(timer.nsecsElapsed()) / 1e6; }

/// A second later each time, from the newest capture of the generated history on.
class StepClock final : public Clock {
public:
    QDateTime now() const override { return bench::GeneratedHistory::newest().addSecs(++m_seconds); }

private:
    mutable int m_seconds = 0;
};

struct Times {
    std::vector<double> held; ///< the longest turn of the main thread, call and answers alike
    std::vector<double> done; ///< until it lies on the disk
};

/// Calls, then goes round the event loop until `isDone`.
void measure(Times &times, const std::function<void()> &call, const std::function<bool()> &isDone)
{
    QElapsedTimer total, turn;
    total.start();
    call();
    double longest = millisecondsSince(total);
    while (!isDone()) {
        QThread::usleep(200);
        turn.start();
        QCoreApplication::processEvents();
        longest = std::max(longest, millisecondsSince(turn));
    }
    times.held.push_back(longest);
    times.done.push_back(millisecondsSince(total));
}

Times record(CaptureHistory &history, const QImage &screen)
{
    Times times;
    for (int i = 0; i < repetitions; ++i) {
        RasterImage capture = RasterImage::fromPixels(screen.copy());
        bool done = false;
        measure(
            times,
            [&] {
                history.record(capture, QStringLiteral("Screenshot"), [&](const Outcome &outcome) {
                    if (!outcome)
                        qFatal("%s", qPrintable(outcome.failure().message));
                    done = true;
                });
                capture = {};
            },
            [&] { return done; });
    }
    return times;
}

/// An editor with a hundred marks, each change written.
Times follow(CaptureHistory &history, const QImage &screen, const Settings &settings)
{
    AnnotationStore store(RasterImage::fromPixels(screen), settings);
    history.track(store, QStringLiteral("Screenshot"), {}, CaptureHistory::Begin::Now);
    Times times;
    for (int i = 0; i < repetitions; ++i) {
        int changes = 0;
        const auto connection
            = QObject::connect(&history, &CaptureHistory::entriesChanged, &history, [&changes] { ++changes; });
        measure(
            times,
            [&] {
                for (int mark = 0; mark < 10; ++mark)
                    store.append(Annotation(AnnotationKind::Arrow, { 10.0 * i, 10 }, { 600, 40.0 * mark }));
            },
            [&] { return changes > 0; });
        QObject::disconnect(connection);
    }
    history.endTracking(store);
    return times;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    const HistoryStore files { folder.filePath(QStringLiteral("History")) };
    if (!bench::GeneratedHistory::write(files, bench::GeneratedHistory::entries(1000 - 2 * repetitions))) {
        std::fprintf(stderr, "the history could not be generated\n");
        return 1;
    }
    Settings settings { QString() };
    if (!settings.set(SettingKeys::historyRetentionDays, 0)) // those of other months shall stay
        return 1;
    const StepClock clock;
    using namespace std::chrono_literals;
    CaptureHistory history({ files, settings, clock, { .first = 0ms, .settled = 0ms, .longest = 0ms, .retry = 1h } });
    history.load();
    history.flush();
    const QImage screen = bench::busyDesktop();
    bench::Limits limits;
    const auto check = [&limits](const char *name, const Times &times) {
        std::printf("%s\n", name);
        limits.check("  the main thread is held, median", bench::quantile(times.held, 0.5), maxHeldMilliseconds, "ms");
        limits.check("  the main thread is held, at worst", bench::quantile(times.held, 1), maxHeldMilliseconds, "ms");
        std::printf("  on the disk after %.0f ms (%.0f to %.0f)\n", bench::quantile(times.done, 0.5),
            bench::quantile(times.done, 0), bench::quantile(times.done, 1));
    };
    check("record a capture of 3840x2160", record(history, screen));
    check("follow an editor with such a capture", follow(history, screen, settings));
    return limits.exitStatus();
}
