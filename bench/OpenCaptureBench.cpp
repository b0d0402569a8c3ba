// SPDX-License-Identifier: GPL-3.0-or-later
// In a program that already runs: from the command to open a capture of 3840×2160 in a new window to its first painted
// frame. The bound is absolute, for it is what people are promised.
#include "bench/support/Screens.h"
#include "tests/support/VirtualScreen.h"
#include "tests/ui/Editor/EditorFixture.h"
#include "ui/Editor/Canvas/CanvasView.h"
#include "ui/Editor/EditorView.h"
#include "ui/Editor/EditorWindowController.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>

#include <algorithm>
#include <cstdio>

using namespace tessaly;

namespace {

constexpr int repetitions = 15;
constexpr double maxMilliseconds = 120;

/// Sees the first frame leave for the screen: the request that follows the painting of the whole window.
class FirstFrame final : public QObject {
public:
    explicit FirstFrame(QWidget &canvas) { canvas.installEventFilter(this); }
    bool painted = false;

    bool eventFilter(QObject *, QEvent *event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return false;
    }
};

double open(EditorWindowController &editors, const RasterImage &capture)
{
    QElapsedTimer timer;
    timer.start();
    EditorView &view = editors.open({ .image = capture, .title = QStringLiteral("capture") });
    FirstFrame frame(view.canvas());
    while (!frame.painted)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::processEvents(); // and what the painting left to do
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
    editors.closeAll();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    return milliseconds;
}

} // namespace

int main(int argc, char **argv)
{
    const test::VirtualScreen screen(QStringLiteral("3840x2160x24"));
    if (screen.displayName().isEmpty()) {
        std::fprintf(stderr, "no X server could be started\n");
        return 1;
    }
    qputenv("DISPLAY", screen.displayName().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    test::EditorFixture desk;
    EditorWindowController editors(desk.services);
    editors.openBlank(); // the program runs
    QCoreApplication::processEvents();
    const RasterImage capture = RasterImage::fromPixels(bench::busyDesktop());
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i)
        times.push_back(open(editors, capture));
    std::ranges::sort(times);
    const double median = times[times.size() / 2];
    const bool kept = median <= maxMilliseconds;
    std::printf("%s  %.1f ms to the first frame (at most %.0f; %.1f to %.1f)\n", kept ? "kept  " : "BROKEN", median,
        maxMilliseconds, times.front(), times.back());
    return kept ? 0 : 1;
}
