// SPDX-License-Identifier: GPL-3.0-or-later
// The resident program on a screen of 3840×2160: from the request on the bus to the painted overlay as another client
// of the X server sees it, the memory and the wake-ups at rest, and what many captures leave behind. These are what
// people are promised, so the bounds are absolute.
#include "bench/support/FreeMemory.h"
#include "bench/support/Limits.h"
#include "bench/support/ProcessFigures.h"
#include "bench/support/Screens.h"
#include "platform/x11/X11Connection.h"
#include "tests/support/VirtualScreen.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <array>
#include <xcb/res.h>

using namespace tessaly;
using namespace tessaly::bench;

namespace {

constexpr std::array<std::pair<int16_t, int16_t>, 3> places { { { 3, 5 }, { 1920, 700 }, { 3835, 2155 } } };
using Pixels = std::array<uint32_t, places.size()>;

/// The screen as another client sees it.
class Watcher {
public:
    explicit Watcher(X11Connection &connection) : m_connection(connection) { }

    /// Makes the picture the background of everything, so that it is there again when a window has gone.
    void show(const QImage &picture) const
    {
        xcb_connection_t *xcb = m_connection.xcb();
        const xcb_pixmap_t pixmap = xcb_generate_id(xcb);
        const xcb_gcontext_t context = xcb_generate_id(xcb);
        xcb_create_pixmap(xcb, 24, pixmap, m_connection.root(), uint16_t(picture.width()), uint16_t(picture.height()));
        xcb_create_gc(xcb, context, pixmap, 0, nullptr);
        constexpr int strip = 60; // rows that fit one request
        for (int y = 0; y < picture.height(); y += strip) {
            const int rows = std::min(strip, picture.height() - y);
            xcb_put_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, uint16_t(picture.width()), uint16_t(rows), 0,
                int16_t(y), 0, 24, uint32_t(picture.bytesPerLine() * rows), picture.constScanLine(y));
        }
        xcb_change_window_attributes(xcb, m_connection.root(), XCB_CW_BACK_PIXMAP, &pixmap);
        xcb_clear_area(xcb, 0, m_connection.root(), 0, 0, 0, 0);
        xcb_flush(xcb);
    }

    /// Windows, pixmaps and all else that the server holds for its clients.
    int resources() const
    {
        xcb_connection_t *xcb = m_connection.xcb();
        const XcbReply<xcb_res_query_clients_reply_t> clients(
            xcb_res_query_clients_reply(xcb, xcb_res_query_clients(xcb), nullptr));
        if (!clients)
            return -1;
        int count = 0;
        const xcb_res_client_t *client = xcb_res_query_clients_clients(clients.get());
        for (int i = 0; i < xcb_res_query_clients_clients_length(clients.get()); ++i) {
            const XcbReply<xcb_res_query_client_resources_reply_t> held(xcb_res_query_client_resources_reply(
                xcb, xcb_res_query_client_resources(xcb, client[i].resource_base), nullptr));
            const xcb_res_type_t *type = held ? xcb_res_query_client_resources_types(held.get()) : nullptr;
            for (int j = 0; type && j < xcb_res_query_client_resources_types_length(held.get()); ++j)
                count += static_cast<int>(type[j].count);
        }
        return count;
    }

    Pixels pixels() const
    {
        Pixels seen {};
        for (size_t index = 0; index < places.size(); ++index) {
            const auto [x, y] = places[index];
            xcb_connection_t *xcb = m_connection.xcb();
            const XcbReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(
                xcb, xcb_get_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, m_connection.root(), x, y, 1, 1, ~0u), nullptr));
            if (reply)
                std::memcpy(&seen[index], xcb_get_image_data(reply.get()), sizeof(uint32_t));
            seen[index] &= 0xffffff;
        }
        return seen;
    }

private:
    X11Connection &m_connection;
};

bool waitUntil(const std::function<bool()> &condition, qint64 longest = 20'000)
{
    QElapsedTimer timer;
    for (timer.start(); !condition(); QThread::usleep(400)) { // looking must not take a core from who is looked at
        if (timer.hasExpired(longest))
            return false;
    }
    return true;
}

QDBusPendingCall request(const QString &subject, const QVariantMap &options)
{
    QDBusMessage call = QDBusMessage::createMethodCall(QStringLiteral("org.tessaly.Tessaly"),
        QStringLiteral("/org/tessaly/Tessaly"), QStringLiteral("org.tessaly.Automation1"), QStringLiteral("Capture"));
    call.setArguments({ subject, options });
    return QDBusConnection::sessionBus().asyncCall(call, 60'000);
}

bool differsEverywhere(const Pixels &one, const Pixels &other)
{
    for (size_t index = 0; index < one.size(); ++index) {
        if (one[index] == other[index])
            return false;
    }
    return true;
}

/// Milliseconds from the request to the overlay on the whole screen; it is then closed. Empty when it did not appear.
std::optional<double> opening(const Watcher &watcher)
{
    const Pixels before = watcher.pixels();
    QElapsedTimer timer;
    timer.start();
    QDBusPendingCall call = request(QStringLiteral("region"), {});
    if (!waitUntil([&] { return differsEverywhere(watcher.pixels(), before); }))
        return std::nullopt;
    const double milliseconds = double(timer.nsecsElapsed()) / 1e6;
    QThread::msleep(300); // the user looks
    QProcess::execute(QStringLiteral("xdotool"), { QStringLiteral("key"), QStringLiteral("Escape") });
    call.waitForFinished();
    if (!waitUntil([&] { return watcher.pixels() == before; }))
        return std::nullopt;
    QThread::msleep(200);
    return milliseconds;
}

/// Waits until what the captures have set going is done: the history has written them to the disk, each has been read
/// for its text, and the notice is gone. Neither the program nor one that it has started then works for a while.
bool becomesQuiet(qint64 program)
{
    constexpr qint64 quietTime = 6000, longest = 20 * 60'000; // ms
    qint64 ticks = -1;
    QElapsedTimer unchanged;
    const auto isQuiet = [&] {
        QThread::msleep(100);
        if (const qint64 now = ProcessFigures::processorTime(program); std::exchange(ticks, now) != now)
            unchanged.start();
        return unchanged.hasExpired(quietTime);
    };
    return waitUntil(isQuiet, longest);
}

bool copyScreen(const QString &rect)
{
    QVariantMap options { { QStringLiteral("to"), QStringLiteral("clipboard") } };
    if (!rect.isEmpty())
        options.insert(QStringLiteral("rect"), rect);
    QDBusPendingCall call = request(rect.isEmpty() ? QStringLiteral("full-screen") : QStringLiteral("region"), options);
    call.waitForFinished();
    return !call.isError();
}

/// Whole screens and, since each is read for its text, many more pieces of different sizes. The last one is always the
/// same: the clipboard holds its picture.
bool copyScreens(int count, qint64 program)
{
    for (int i = 0; i < count - 1; ++i) {
        if (!copyScreen(i % 40 == 0 ? QString() : QStringLiteral("40,30,%1,220").arg(300 + (7 * i) % 500)))
            return false;
    }
    return copyScreen(QStringLiteral("40,30,700,500")) && becomesQuiet(program);
}

/// Bus, window manager and program of their own; all end with this process.
class Session {
public:
    explicit Session(const test::VirtualScreen &screen)
    {
        for (const char *name : { "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR" })
            qputenv(name, m_home.path().toLocal8Bit());
        for (const char *name : { "QT_QPA_PLATFORM", "WAYLAND_DISPLAY" })
            qunsetenv(name);
        qputenv("DISPLAY", screen.displayName().toLatin1());
        for (QProcess *process : { &m_bus, &m_manager, &m_program })
            test::endWithThisProcess(*process);
        m_bus.start(QStringLiteral("dbus-daemon"),
            { QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1") });
        while (!m_bus.canReadLine() && m_bus.waitForReadyRead(20'000)) { }
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
        m_manager.start(QStringLiteral("openbox"), {});
    }
    ~Session()
    {
        for (QProcess *process : { &m_program, &m_manager, &m_bus }) {
            process->terminate();
            process->waitForFinished();
        }
    }

    bool startProgram()
    {
        m_program.start(QStringLiteral(TESSALY_DESKTOP), { QStringLiteral("--resident") });
        return m_program.waitForStarted() && waitUntil([] {
            return QDBusConnection::sessionBus().interface()->isServiceRegistered(
                QStringLiteral("org.tessaly.Tessaly"));
        });
    }
    void stopProgram()
    {
        m_program.terminate();
        m_program.waitForFinished();
    }
    qint64 program() const { return m_program.processId(); }

private:
    QTemporaryDir m_home;
    QProcess m_bus, m_manager, m_program;
};

int fail(const char *sentence)
{
    std::fprintf(stderr, "%s\n", sentence);
    return 1;
}

} // namespace

int main(int argc, char **argv)
{
    const test::VirtualScreen screen(QStringLiteral("3840x2160x24"));
    const auto connection = X11Connection::open(screen.displayName());
    if (!connection)
        return fail("no X server could be started");
    const Watcher watcher(**connection);
    Session session(screen);
    const QCoreApplication application(argc, argv);
    QThread::sleep(1); // the window manager takes over
    watcher.show(busyDesktop());
    Limits limits;

    std::vector<double> firsts, openings;
    for (int start = 0; start < 5; ++start) {
        session.stopProgram();
        if (!session.startProgram() || !becomesQuiet(session.program()))
            return fail("the program does not take requests, or does not become quiet");
        FreeMemory::bringAtHand();
        firsts.push_back(opening(watcher).value_or(1e9));
    }
    limits.check("request to painted overlay, the first after a start, median", quantile(firsts, 0.5), 45, "ms");
    for (int i = 0; i < 20; ++i) {
        const auto milliseconds = opening(watcher);
        if (!milliseconds)
            return fail("no overlay appeared, or it did not go");
        openings.push_back(*milliseconds);
    }
    std::printf("from %.1f to %.1f ms\n", quantile(openings, 0), quantile(openings, 1));
    limits.check("request to painted overlay, median", quantile(openings, 0.5), 30, "ms");

    if (!copyScreens(20, session.program()))
        return fail("nothing was captured, or the program did not become quiet");
    const auto early = ProcessFigures::memory(session.program());
    const int earlyFiles = ProcessFigures::openFiles(session.program());
    const int earlyResources = watcher.resources();
    if (!copyScreens(480, session.program()))
        return fail("nothing was captured, or the program did not become quiet");
    const auto late = ProcessFigures::memory(session.program());
    std::printf("beside segments of %.1f MiB, %.1f MiB of its own after 20 captures\n", late.segments, early.own);
    limits.check("growth in 480 captures to the clipboard", late.own - early.own, 2, "MiB");
    limits.check("files more open after them", ProcessFigures::openFiles(session.program()) - earlyFiles, 0, "");
    std::printf("the X server holds %d resources\n", earlyResources);
    limits.check("X resources more after them", watcher.resources() - earlyResources, 0, "");

    QThread::sleep(75); // what is kept for the next capture, and the reader of texts, have been given back
    const auto wakeUps = ProcessFigures::wakeUps(session.program());
    QThread::sleep(60);
    limits.check(
        "wake-ups in a minute at rest", double(ProcessFigures::wakeUpsSince(wakeUps, session.program())), 2, "");
    const auto rest = ProcessFigures::memory(session.program());
    std::printf("segments at rest: %.1f MiB\n", rest.segments);
    limits.check("memory at rest", rest.other, 35, "MiB");
    limits.check(
        "other programs that it keeps at rest", double(ProcessFigures::children(session.program()).size()), 0, "");
    std::vector<double> rested;
    for (int i = 0; i < 3; ++i) {
        if (i > 0)
            QThread::sleep(70);
        FreeMemory::bringAtHand();
        rested.push_back(opening(watcher).value_or(1e9));
    }
    limits.check("request to painted overlay after a rest, median", quantile(rested, 0.5), 45, "ms");
    return limits.exitStatus();
}
