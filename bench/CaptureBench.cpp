// SPDX-License-Identifier: GPL-3.0-or-later
// A cold full-screen capture of 3840×2160 to a PNG file and into the history, whole process, beside a packaged program
// of the same job.
#include "bench/support/Bounds.h"
#include "bench/support/GeneratedHistory.h"
#include "bench/support/Libpng.h"
#include "bench/support/Screens.h"
#include "platform/x11/X11Connection.h"
#include "tests/support/VirtualScreen.h"

#include <benchmark/benchmark.h>

#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdio>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace tessaly;

namespace {

/// Shows the picture on the server's root window, in strips that fit one request.
bool show(const QString &display, const QImage &picture)
{
    const auto opened = X11Connection::open(display);
    if (!opened)
        return false;
    xcb_connection_t *xcb = (*opened)->xcb();
    const xcb_gcontext_t context = xcb_generate_id(xcb);
    xcb_create_gc(xcb, context, (*opened)->root(), 0, nullptr);
    constexpr int strip = 60;
    for (int y = 0; y < picture.height(); y += strip) {
        const int rows = std::min(strip, picture.height() - y);
        xcb_put_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, (*opened)->root(), context, uint16_t(picture.width()),
            uint16_t(rows), 0, int16_t(y), 0, 24, uint32_t(picture.bytesPerLine() * rows), picture.constScanLine(y));
    }
    const XcbReply<xcb_get_input_focus_reply_t> drawn(
        xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    return drawn != nullptr;
}

/// Runs a program to its end; false when it fails.
bool ran(const std::vector<std::string> &command)
{
    std::vector<char *> arguments;
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    pid_t child = 0;
    int status = -1;
    if (::posix_spawnp(&child, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
        return false;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void measure(const char *name, const std::vector<std::string> &command, const QString &output)
{
    benchmark::RegisterBenchmark(name,
        [=](benchmark::State &state) {
            for (auto step : state) {
                if (!ran(command))
                    state.SkipWithError("the program failed");
            }
            state.counters["bytes"] = double(QFileInfo(output).size());
        })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(3);
}

} // namespace

int main(int argc, char **argv)
{
    const test::VirtualScreen screen(QStringLiteral("3840x2160x24"));
    const QImage desktop = bench::busyDesktop();
    if (screen.displayName().isEmpty() || !show(screen.displayName(), desktop)) {
        std::fprintf(stderr, "no X server could be started\n");
        return 1;
    }
    qputenv("DISPLAY", screen.displayName().toLatin1());
    qunsetenv("WAYLAND_DISPLAY");
    const QTemporaryDir folder;
    // Every capture is recorded, beside a thousand others.
    qputenv("XDG_DATA_HOME", QFile::encodeName(folder.path()));
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(folder.path()));
    if (!bench::GeneratedHistory::write({ HistoryStore::defaultDirectory() }, bench::GeneratedHistory::entries(1000))) {
        std::fprintf(stderr, "no history could be written\n");
        return 1;
    }
    ::sync(); // or the captures wait for it
    const QString ours = folder.filePath(QStringLiteral("ours.png"));
    const QString others = folder.filePath(QStringLiteral("others.png"));
    measure("Capture/tessaly", { TESSALY_PROGRAM, "capture", "full-screen", "-o", ours.toStdString() }, ours);
    measure("Capture/scrot", { "scrot", "-o", others.toStdString() }, others);
    benchmark::RegisterBenchmark("Capture/libpng6",
        [&](benchmark::State &state) {
            QByteArray bytes;
            for (auto step : state)
                bytes = bench::libpngLevel6(desktop);
            state.counters["bytes"] = double(bytes.size());
        })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
    return bench::runWithBounds(argc, argv,
        { { "Capture/tessaly", "Capture/scrot", 0.4 }, { "Capture/tessaly", "Capture/libpng6", 1.06, "bytes" } });
}
