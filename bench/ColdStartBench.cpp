// SPDX-License-Identifier: GPL-3.0-or-later
// From the start of the program to a picture of 3840×2160 that can be seen, beside a packaged editor, and the memory
// that is then in use. The picture is known by a colour that nothing else on the screen has. The time is a ratio to
// the other program of the same run; the memory is what people are promised.
#include "bench/support/FreeMemory.h"
#include "bench/support/Screens.h"
#include "core/Export/ImageEncoder.h"
#include "platform/x11/X11Connection.h"
#include "tests/support/VirtualScreen.h"

#include <QDir>
#include <QElapsedTimer>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <functional>

using namespace tessaly;

namespace {

constexpr int repetitions = 7;
constexpr double maxRatio = 0.5;
constexpr double maxMebibytes = 100;
constexpr QRgb signal = qRgb(203, 17, 161);

/// A desktop with small squares of the signal colour all over it, so that any part of it is known, at any scale.
QImage markedPicture()
{
    QImage picture = bench::busyDesktop();
    QPainter painter(&picture);
    for (int y = 0; y < picture.height(); y += 120) {
        for (int x = 0; x < picture.width(); x += 120)
            painter.fillRect(x, y, 40, 40, QColor(signal));
    }
    return picture;
}

/// The pixels of the signal colour in some rows of the whole screen.
int signalPixels(X11Connection &connection)
{
    constexpr int width = 3840, height = 2160, step = 90;
    int count = 0;
    for (int y = 0; y < height; y += step) {
        const XcbReply<xcb_get_image_reply_t> row(xcb_get_image_reply(connection.xcb(),
            xcb_get_image(connection.xcb(), XCB_IMAGE_FORMAT_Z_PIXMAP, connection.root(), 0, int16_t(y), width, 1, ~0u),
            nullptr));
        if (!row)
            continue;
        const auto *pixels = reinterpret_cast<const QRgb *>(xcb_get_image_data(row.get()));
        count += int(std::count_if(pixels, pixels + width, [](QRgb pixel) { return (pixel | 0xff000000u) == signal; }));
    }
    return count;
}

/// Proportional memory of a process and all below it in MiB.
double mebibytes(qint64 process)
{
    const QString folder = QStringLiteral("/proc/%1").arg(process);
    QFile rollup(folder + QStringLiteral("/smaps_rollup"));
    double total = 0;
    if (rollup.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : rollup.readAll().split('\n')) {
            if (line.startsWith("Pss:"))
                total += line.simplified().split(' ')[1].toDouble() / 1024;
        }
    }
    QFile children(folder + QStringLiteral("/task/%1/children").arg(process));
    if (children.open(QIODevice::ReadOnly)) {
        for (const QByteArray &child : children.readAll().simplified().split(' '))
            total += child.isEmpty() ? 0 : mebibytes(child.toLongLong());
    }
    return total;
}

struct Start {
    double milliseconds = 0;
    double mebibytes = 0;
};

bool waitUntil(int milliseconds, const std::function<bool()> &condition)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.hasExpired(milliseconds))
            return false;
        QThread::msleep(4); // looking must not take a core from the program that is looked at
    }
    return true;
}

/// Starts the program, waits for the picture, looks at its memory a second later and ends it.
std::optional<Start> start(X11Connection &connection, const QString &program, const QStringList &arguments)
{
    constexpr int enough = 100; // pixels; less than the smallest window shows
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    Start start;
    bench::FreeMemory::bringAtHand();
    QElapsedTimer timer;
    timer.start();
    process.start(program, arguments);
    if (!waitUntil(20'000, [&] { return signalPixels(connection) >= enough; }))
        return std::nullopt;
    start.milliseconds = double(timer.nsecsElapsed()) / 1e6;
    QThread::sleep(1);
    start.mebibytes = mebibytes(process.processId());
    process.kill();
    process.waitForFinished();
    if (!waitUntil(5'000, [&] { return signalPixels(connection) == 0; }))
        return std::nullopt;
    return start;
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// Prints one program's medians.
Start medians(const char *name, const std::vector<Start> &starts)
{
    std::vector<double> times, sizes;
    for (const Start &each : starts) {
        times.push_back(each.milliseconds);
        sizes.push_back(each.mebibytes);
    }
    const Start middle { median(times), median(sizes) };
    std::printf("%-10s %6.0f ms to the picture (%.0f to %.0f), %5.0f MiB\n", name, middle.milliseconds,
        *std::ranges::min_element(times), *std::ranges::max_element(times), middle.mebibytes);
    return middle;
}

int fail(const char *sentence)
{
    std::fprintf(stderr, "%s\n", sentence);
    return 1;
}

} // namespace

int main()
{
    const test::VirtualScreen screen(QStringLiteral("3840x2160x24"));
    const QTemporaryDir home;
    for (const char *name : { "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR" })
        qputenv(name, home.path().toLocal8Bit());
    for (const char *name : { "QT_QPA_PLATFORM", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS" })
        qunsetenv(name);
    qputenv("DISPLAY", screen.displayName().toLatin1());
    const auto connection = X11Connection::open(screen.displayName());
    if (!connection)
        return fail("no X server could be started");
    QProcess manager;
    manager.start(QStringLiteral("openbox"), {});
    const QString file = home.filePath(QStringLiteral("picture.png"));
    const auto bytes = encodeImage(RasterImage::fromPixels(markedPicture()), ExportFormat::Png, {});
    QFile picture(file);
    if (!manager.waitForStarted() || !bytes || !picture.open(QIODevice::WriteOnly) || picture.write(*bytes) < 0)
        return fail("the window manager or the picture is missing");
    picture.close();
    QThread::sleep(1); // the manager takes over

    std::vector<Start> ours, others;
    for (int i = 0; i <= repetitions; ++i) {
        const auto our = start(**connection, QStringLiteral(TESSALY_PROGRAM), { file });
        const auto other = start(**connection, QStringLiteral("ksnip"), { QStringLiteral("-e"), file });
        if (!our || !other)
            return fail(our ? "ksnip showed no picture" : "tessaly showed no picture");
        if (i == 0)
            continue; // the first reads the programs from the disk
        ours.push_back(*our);
        others.push_back(*other);
    }
    manager.terminate();
    manager.waitForFinished();
    const Start our = medians("tessaly", ours);
    const Start other = medians("ksnip", others);
    const double ratio = our.milliseconds / other.milliseconds;
    const bool kept = ratio <= maxRatio && our.mebibytes <= maxMebibytes;
    std::printf("\n%s  time %.3f (at most %.3f), %.0f MiB (at most %.0f)\n", kept ? "kept  " : "BROKEN", ratio,
        maxRatio, our.mebibytes, maxMebibytes);
    return kept ? 0 : 1;
}
