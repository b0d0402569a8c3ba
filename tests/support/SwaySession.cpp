// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/SwaySession.h"

#include "tests/support/Patience.h"
#include "tests/support/TestFiles.h"
#include "tests/support/VirtualScreen.h"

#include <QDeadlineTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QThread>

#include <csignal>
#include <grp.h>
#include <sys/prctl.h>

namespace tessaly::test {

namespace {

constexpr uid_t nobody = 65534;

QStringList configurationLines(const QList<SwaySession::Monitor> &monitors)
{
    QStringList lines { QStringLiteral("xwayland disable"), QStringLiteral("swaybg_command -"),
        QStringLiteral("swaynag_command -"), QStringLiteral("focus_follows_mouse no"),
        QStringLiteral("seat * xcursor_theme invisible 24") };
    for (qsizetype index = 0; index < monitors.size(); ++index) {
        const auto &monitor = monitors[index];
        lines += QStringLiteral("output HEADLESS-%1 res %2x%3 pos %4 %5 scale %6 transform %7")
                     .arg(index + 1)
                     .arg(monitor.pixelSize.width())
                     .arg(monitor.pixelSize.height())
                     .arg(monitor.position.x())
                     .arg(monitor.position.y())
                     .arg(monitor.scale)
                     .arg(monitor.transform);
    }
    return lines;
}

/// In the new process, before sway: the order matters, since a change of the user forgets the parent's death.
void becomeHarmless()
{
    if (::geteuid() == 0) {
        ::setgroups(0, nullptr);
        if (::setgid(nobody) != 0 || ::setuid(nobody) != 0)
            ::_exit(1);
    }
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}

} // namespace

SwaySession::SwaySession(const QList<Monitor> &monitors)
{
    if (!writeInvisiblePointer() || !writeConfiguration(monitors))
        return;
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_ownRuntime.path()));
    qputenv("WAYLAND_DISPLAY", QFile::encodeName(path(QStringLiteral("wayland-1"))));
    qputenv("SWAYSOCK", QFile::encodeName(path(QStringLiteral("sway.sock"))));
    qputenv("XDG_CURRENT_DESKTOP", "sway");
    qputenv("XCURSOR_PATH", QFile::encodeName(m_folder.path()));
    qputenv("XCURSOR_THEME", "invisible");
    qunsetenv("DISPLAY");
    start(monitors.size());
    // It answers when its monitors are set up.
    const auto has = [](const char *kind, const auto &isThere) {
        const auto answer = output(
            QStringLiteral("swaymsg"), { QStringLiteral("-t"), QLatin1StringView(kind), QStringLiteral("-r") });
        return answer && isThere(QJsonDocument::fromJson(*answer).array());
    };
    const bool hasMonitors = waitFor([&] {
        return has("get_outputs", [&](const QJsonArray &outputs) { return outputs.size() == monitors.size(); });
    });
    endWithThisProcess(m_keyboard);
    m_keyboard.start(QStringLiteral("wtype"), { QStringLiteral("-s"), QStringLiteral("2000000") });
    m_ready = hasMonitors && waitFor([&] {
        return has("get_inputs", [](const QJsonArray &inputs) {
            return std::ranges::any_of(
                inputs, [](const QJsonValue &input) { return input[u"type"].toString() == u"keyboard"; });
        });
    });
}

/// Until it is true, while sway runs.
bool SwaySession::waitFor(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        if (deadline.hasExpired() || m_sway.state() != QProcess::Running)
            return false;
        QThread::msleep(10);
    }
    return true;
}

SwaySession::~SwaySession() { end(); }

void SwaySession::end()
{
    m_keyboard.kill();
    m_keyboard.waitForFinished(patience);
    m_sway.terminate();
    if (!m_sway.waitForFinished(patience))
        m_sway.kill();
    m_sway.waitForFinished(patience);
}

/// A theme of one pointer, with one pixel that is transparent.
bool SwaySession::writeInvisiblePointer() const
{
    constexpr quint32 imageType = 0xfffd0002, side = 24, imageAt = 28;
    const quint32 words[] { 16, 0x10000, 1, imageType, side, imageAt, // the header and its one entry
        36, imageType, side, 1, 1, 1, 0, 0, 0, 0 }; // the image's header, size, place and delay, and its pixel
    QByteArray content("Xcur");
    for (const quint32 word : words) {
        for (int shift = 0; shift < 32; shift += 8)
            content += char(word >> shift);
    }
    return QDir(m_folder.path()).mkpath(QStringLiteral("invisible/cursors"))
        && writeFile(path(QStringLiteral("invisible/cursors/left_ptr")), content);
}

bool SwaySession::writeConfiguration(const QList<Monitor> &monitors) const
{
    const QString file = path(QStringLiteral("config"));
    if (!writeFile(file, configurationLines(monitors).join(u'\n').toUtf8() + '\n'))
        return false;
    return ::geteuid() != 0 || ::chown(QFile::encodeName(m_folder.path()).constData(), nobody, nobody) == 0;
}

void SwaySession::start(qsizetype monitorCount)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    const std::pair<const char *, QString> values[] {
        { "XDG_RUNTIME_DIR", m_folder.path() },
        { "HOME", m_folder.path() },
        { "WLR_BACKENDS", QStringLiteral("headless") },
        { "WLR_HEADLESS_OUTPUTS", QString::number(monitorCount) },
        { "WLR_LIBINPUT_NO_DEVICES", QStringLiteral("1") },
        { "WLR_RENDERER", QStringLiteral("pixman") },
    };
    for (const auto &[name, value] : values)
        environment.insert(QLatin1StringView(name), value);
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    m_sway.setProcessEnvironment(environment);
    m_sway.setStandardOutputFile(path(QStringLiteral("log")));
    m_sway.setStandardErrorFile(path(QStringLiteral("log")), QIODevice::Append);
    m_sway.setChildProcessModifier(becomeHarmless);
    m_sway.start(QStringLiteral("sway"), { QStringLiteral("-c"), path(QStringLiteral("config")) });
    m_sway.waitForStarted(patience);
}

bool SwaySession::command(const QString &command) { return output(QStringLiteral("swaymsg"), { command }).has_value(); }

std::optional<QByteArray> SwaySession::output(
    const QString &program, const QStringList &arguments, const QByteArray &input)
{
    QProcess process;
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(patience) || process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        return {};
    return process.readAllStandardOutput();
}

QImage SwaySession::picture(const QString &monitor)
{
    const auto png = output(QStringLiteral("grim"), { QStringLiteral("-o"), monitor, QStringLiteral("-") });
    return png ? QImage::fromData(*png, "PNG").convertToFormat(QImage::Format_RGB32) : QImage();
}

} // namespace tessaly::test
