// SPDX-License-Identifier: GPL-3.0-or-later
// From the request to a painted selection on a screen of 3840×2160, in a program that stays, against a window that is
// made for it. The end is when the server has the pixels.
#include "bench/support/Bounds.h"
#include "bench/support/Screens.h"
#include "bench/support/ShownPicture.h"
#include "core/Preferences/Settings.h"
#include "platform/x11/X11Layers.h"
#include "platform/x11/X11ScreenSource.h"
#include "platform/x11/X11WindowSource.h"
#include "tests/support/FakeDesktop.h"
#include "tests/support/VirtualScreen.h"
#include "ui/Overlay/OverlayController.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPainter>
#include <QProcess>
#include <QScreen>
#include <QWidget>

#include <cstdio>

using namespace tessaly;

namespace {

constexpr QPoint watched { 3839, 2159 }; ///< the last that is painted

/// Handles events until the server shows something else there than before, or again what was there.
bool waitFor(const bench::ShownPicture &screen, QRgb usual, bool covered)
{
    QElapsedTimer timer;
    timer.start();
    while ((screen.pixelAt(watched) != usual) != covered) {
        QCoreApplication::processEvents();
        if (timer.elapsed() > 5000)
            return false;
    }
    return true;
}

void settle()
{
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < 100)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

/// `open` and `close` one selection.
template <class Open, class Close>
void measure(benchmark::State &state, const bench::ShownPicture &screen, Open open, Close close)
{
    const QRgb usual = screen.pixelAt(watched);
    for ([[maybe_unused]] auto _ : state) {
        QElapsedTimer timer;
        timer.start();
        open();
        const bool painted = waitFor(screen, usual, true);
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
        close();
        if (!painted || !waitFor(screen, usual, false))
            state.SkipWithError("nothing was painted");
        settle();
    }
}

/// The same with nothing kept: a widget that shows the picture of the screen, dimmed.
class FreshWidget final : public QWidget {
public:
    FreshWidget() :
        QWidget(nullptr, Qt::FramelessWindowHint | Qt::BypassWindowManagerHint),
        m_picture(QGuiApplication::primaryScreen()->grabWindow(0))
    {
        setGeometry(QGuiApplication::primaryScreen()->geometry());
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, m_picture);
        painter.fillRect(rect(), QColor(0, 0, 0, 115));
    }

private:
    QPixmap m_picture;
};

struct Desk {
    std::unique_ptr<ScreenSource> screen;
    std::unique_ptr<WindowSource> windows;
    WindowPicker picker { *windows };
    X11Layers layers;
    Settings settings { QString() };
    test::FakeClipboard clipboard;
    OverlayController overlay { { layers, picker, settings, clipboard } };

    void open()
    {
        const auto displays = screen->displays();
        if (!displays || !picker.prepare())
            return;
        DisplaySnapshots pictures;
        for (const auto &display : *displays)
            screen->capture({ display, display.pixelRect() }, [&](const Result<RasterImage> &picture) {
                if (picture)
                    pictures.insert(display.id(), picture->pixels);
            });
        overlay.begin({ OverlayMode::Region, *displays, pictures }, [](const OverlayResult &) {});
    }
};

} // namespace

int main(int argc, char **argv)
{
    const test::VirtualScreen server(QStringLiteral("3840x2160x24"));
    const auto screen = bench::ShownPicture::show(server.displayName(), bench::busyDesktop());
    if (!screen) {
        std::fprintf(stderr, "no X server could be started\n");
        return 1;
    }
    qputenv("DISPLAY", server.displayName().toLatin1());
    qputenv("QT_QPA_PLATFORM", "xcb");
    qunsetenv("WAYLAND_DISPLAY");
    QProcess manager;
    test::endWithThisProcess(manager);
    manager.setProgram(QStringLiteral("openbox"));
    manager.start();
    manager.waitForStarted();
    const QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    auto source = X11ScreenSource::create(CaptureUse::Repeated);
    auto windows = source ? X11WindowSource::create(**source) : Result<std::unique_ptr<WindowSource>>(Failure {});
    if (!windows) {
        std::fprintf(stderr, "the screen cannot be read\n");
        return 1;
    }
    Desk desk { std::move(*source), std::move(*windows) };
    desk.overlay.prepare(OverlayUse::Later);
    settle();
    std::unique_ptr<FreshWidget> fresh;
    const auto add = [](const char *name, auto function) {
        benchmark::RegisterBenchmark(name, function)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);
    };
    add("Overlay/kept", [&](benchmark::State &state) {
        measure(
            state, *screen, [&] { desk.open(); }, [&] { desk.overlay.cancel(); });
    });
    add("Overlay/fresh", [&](benchmark::State &state) {
        const auto open = [&] {
            fresh = std::make_unique<FreshWidget>();
            fresh->show();
        };
        measure(state, *screen, open, [&] { fresh.reset(); });
    });
    const int status = bench::runWithBounds(argc, argv, { { "Overlay/kept", "Overlay/fresh", 0.4 } });
    manager.terminate();
    manager.waitForFinished();
    return status;
}
