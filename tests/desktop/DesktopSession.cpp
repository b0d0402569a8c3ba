// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/desktop/DesktopSession.h"
#include "tests/support/Patience.h"

#include <QColorSpace>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>

namespace tessaly::test {

namespace {

void end(QProcess &process)
{
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished(patience);
    }
}

bool waitFor(const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(patience);
    while (!condition()) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(50);
    }
    return true;
}

} // namespace

DesktopSession::DesktopSession(const QString &geometry) : m_screen(geometry)
{
    prepareEnvironment("xcb");
    qputenv("DISPLAY", m_screen->displayName().toLocal8Bit());
    qunsetenv("WAYLAND_DISPLAY");
    m_ready = !m_screen->displayName().isEmpty() && startBus() && startWindowManager();
}

DesktopSession::DesktopSession(WindowSystem)
{
    prepareEnvironment("wayland");
    m_ready = startBus();
}

void DesktopSession::prepareEnvironment(const char *platform)
{
    QDir(m_home.path()).mkpath(QStringLiteral("runtime"));
    QFile::setPermissions(path(QStringLiteral("runtime")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    for (QProcess *process : { &m_bus, &m_windowManager, &m_program })
        endWithThisProcess(*process);
    const QList<std::pair<const char *, QString>> variables {
        { "HOME", m_home.path() },
        { "XDG_RUNTIME_DIR", path(QStringLiteral("runtime")) },
        { "XDG_CONFIG_HOME", path(QStringLiteral("config")) },
        { "XDG_DATA_HOME", path(QStringLiteral("data")) },
        { "QT_QPA_PLATFORM", QLatin1StringView(platform) },
        { "QT_LINUX_ACCESSIBILITY_ALWAYS_ON", QStringLiteral("1") },
        { "LANG", QStringLiteral("C.UTF-8") },
    };
    for (const auto &[name, value] : variables)
        qputenv(name, value.toLocal8Bit());
    writeSettings("{}");
}

DesktopSession::~DesktopSession()
{
    end(m_program);
    end(m_windowManager);
    end(m_bus);
}

bool DesktopSession::startBus()
{
    m_bus.setStandardErrorFile(QProcess::nullDevice());
    m_bus.start(QStringLiteral("dbus-daemon"),
        { QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address=1") });
    while (!m_bus.canReadLine() && m_bus.waitForReadyRead(patience)) { }
    const QByteArray address = m_bus.readLine().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    return !address.isEmpty();
}

bool DesktopSession::startWindowManager()
{
    m_windowManager.setStandardErrorFile(QProcess::nullDevice());
    m_windowManager.start(QStringLiteral("openbox"), {});
    return waitFor([this] {
        return output(QStringLiteral("xprop"), { QStringLiteral("-root"), QStringLiteral("_NET_SUPPORTING_WM_CHECK") })
            .contains("window id");
    });
}

void DesktopSession::writeSettings(const QByteArray &json) const
{
    QJsonObject settings = QJsonDocument::fromJson(json).object();
    const QString guide = QStringLiteral("showOnboardingOnLaunch");
    if (!settings.contains(guide))
        settings.insert(guide, false);
    const QByteArray content = QJsonDocument(settings).toJson();
    QDir(m_home.path()).mkpath(QStringLiteral("config/tessaly"));
    QFile file(path(QStringLiteral("config/tessaly/settings.json")));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("no settings could be written");
}

QString DesktopSession::program() { return QStringLiteral(TESSALY_BINARIES "/tessaly"); }

bool DesktopSession::launch(const QString &name, const QStringList &arguments)
{
    const QStringList command = m_starter + QStringList(name) + arguments;
    m_program.setProcessChannelMode(QProcess::ForwardedChannels);
    m_program.start(command.first(), command.mid(1));
    m_tree = std::make_unique<AccessibleTree>(QStringLiteral("tessaly"));
    return m_program.waitForStarted(patience);
}

bool DesktopSession::start(const QStringList &arguments) { return launch(program(), arguments); }

void DesktopSession::splitMonitors() const
{
    const QByteArray size = output(QStringLiteral("xdotool"), { QStringLiteral("getdisplaygeometry") });
    const int half = size.split(' ').first().toInt() / 2, height = size.trimmed().split(' ').last().toInt();
    const auto monitor = [&](const char *name, int left, const char *screen) {
        output(QStringLiteral("xrandr"),
            { QStringLiteral("--setmonitor"), QLatin1StringView(name),
                QStringLiteral("%1/200x%2/150+%3+0").arg(half).arg(height).arg(left), QLatin1StringView(screen) });
    };
    monitor("LEFT", 0, "screen");
    monitor("RIGHT", half, "none");
    qputenv("QT_SCREEN_SCALE_FACTORS", "LEFT=1;RIGHT=2");
}

void DesktopSession::showBackground(const QImage &picture) const
{
    const QString file = path(QStringLiteral("background.png"));
    if (!picture.save(file))
        qFatal("no background could be written");
    output(QStringLiteral("display"), { QStringLiteral("-window"), QStringLiteral("root"), file });
}

bool DesktopSession::startResident(const QByteArray &settings)
{
    writeSettings(settings);
    return startResident();
}

bool DesktopSession::startResident()
{
    const auto hasName = [this] {
        return output(QStringLiteral("dbus-send"),
            { QStringLiteral("--session"), QStringLiteral("--print-reply"),
                QStringLiteral("--dest=org.freedesktop.DBus"), QStringLiteral("/"),
                QStringLiteral("org.freedesktop.DBus.GetNameOwner"), QStringLiteral("string:org.tessaly.Tessaly") })
            .contains("string");
    };
    if (!launch(program() + QStringLiteral("-desktop"), { QStringLiteral("--resident") }) || !waitFor(hasName))
        return false;
    // Its start may have put off something behind the first of these, but not behind the second.
    const QStringList stay { QStringLiteral("org.tessaly.Automation1.Stay") };
    return ask(stay) == "()\n" && ask(stay) == "()\n";
}

QByteArray DesktopSession::ask(const QStringList &methodAndArguments) const
{
    QProcess gdbus;
    gdbus.setProcessChannelMode(QProcess::MergedChannels);
    gdbus.start(QStringLiteral("gdbus"),
        QStringList { QStringLiteral("call"), QStringLiteral("--session"), QStringLiteral("-d"),
            QStringLiteral("org.tessaly.Tessaly"), QStringLiteral("-o"), QStringLiteral("/org/tessaly/Tessaly"),
            QStringLiteral("-m") }
            + methodAndArguments);
    gdbus.waitForFinished(patience);
    return gdbus.readAll();
}

int DesktopSession::stop()
{
    m_program.terminate();
    return waitForEnd();
}

std::unique_ptr<QProcess> DesktopSession::command(const QStringList &arguments) const
{
    auto process = std::make_unique<QProcess>();
    endWithThisProcess(*process);
    const QStringList command = m_starter + QStringList(program()) + arguments;
    process->start(command.first(), command.mid(1));
    return process;
}

int DesktopSession::finish(QProcess &command)
{
    // It may have been seen to end while something else was waited for.
    const bool ended = command.state() == QProcess::NotRunning || command.waitForFinished(patience);
    const bool normal = command.exitStatus() == QProcess::NormalExit && command.error() != QProcess::FailedToStart;
    return ended && normal ? command.exitCode() : -1;
}

int DesktopSession::waitForEnd()
{
    return m_program.waitForFinished(patience) && m_program.exitStatus() == QProcess::NormalExit ? m_program.exitCode()
                                                                                                 : -1;
}

void DesktopSession::limitFiles(qint64 bytes) const
{
    const QString limit = bytes < 0 ? QStringLiteral("unlimited") : QString::number(bytes);
    // The soft limit only: the hard one could not be raised again.
    output(QStringLiteral("prlimit"),
        { QStringLiteral("--fsize=%1:").arg(limit), QStringLiteral("--pid"), QString::number(m_program.processId()) });
}

QByteArray DesktopSession::output(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    process.start(program, arguments);
    const bool done = process.waitForFinished(patience) && process.exitCode() == 0;
    return done ? process.readAllStandardOutput() : QByteArray();
}

void DesktopSession::xdotool(const QStringList &arguments) const { output(QStringLiteral("xdotool"), arguments); }

void DesktopSession::key(const QString &keys) const
{
    xdotool({ QStringLiteral("key"), QStringLiteral("--clearmodifiers"), keys });
}

void DesktopSession::type(const QString &text) const
{
    xdotool({ QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("8"), text });
}

void DesktopSession::click(QPoint at, int button) const
{
    xdotool({ QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y()), QStringLiteral("click"),
        QString::number(button) });
}

void DesktopSession::doubleClick(QPoint at) const
{
    xdotool({ QStringLiteral("mousemove"), QString::number(at.x()), QString::number(at.y()), QStringLiteral("click"),
        QStringLiteral("--repeat"), QStringLiteral("2"), QStringLiteral("--delay"), QStringLiteral("60"),
        QStringLiteral("1") });
}

void DesktopSession::drag(const QList<QPoint> &way, const QString &modifier) const
{
    QStringList steps;
    const auto moveTo = [&steps](QPointF point) {
        steps << QStringLiteral("mousemove") << QString::number(qRound(point.x())) << QString::number(qRound(point.y()))
              << QStringLiteral("sleep") << QStringLiteral("0.01");
    };
    if (!modifier.isEmpty())
        steps << QStringLiteral("keydown") << modifier;
    moveTo(way.first());
    steps << QStringLiteral("mousedown") << QStringLiteral("1");
    for (qsizetype leg = 1; leg < way.size(); ++leg) {
        constexpr int stepsOfLeg = 8;
        for (int step = 1; step <= stepsOfLeg; ++step)
            moveTo(way[leg - 1] + QPointF(way[leg] - way[leg - 1]) * step / stepsOfLeg);
    }
    steps << QStringLiteral("mouseup") << QStringLiteral("1");
    if (!modifier.isEmpty())
        steps << QStringLiteral("keyup") << modifier;
    xdotool(steps);
}

bool DesktopSession::click(const QString &control, const QString &role) const
{
    const auto found = m_tree->find(control, role);
    if (found)
        click(found->rect.center());
    return found.has_value();
}

bool DesktopSession::waitUntilGone(const QString &control) const
{
    return waitFor([&] { return !m_tree->shows(control); });
}

QImage DesktopSession::pixels(const QString &file)
{
    QImage image = QImage(file).convertToFormat(QImage::Format_RGB32);
    image.setColorSpace({});
    return image;
}

QImage DesktopSession::clipboardPicture() const
{
    return QImage::fromData(output(QStringLiteral("xclip"),
                                { QStringLiteral("-selection"), QStringLiteral("clipboard"), QStringLiteral("-t"),
                                    QStringLiteral("image/png"), QStringLiteral("-o") }),
        "PNG");
}

QByteArray DesktopSession::clipboardText() const
{
    return output(QStringLiteral("xclip"),
        { QStringLiteral("-selection"), QStringLiteral("clipboard"), QStringLiteral("-t"),
            QStringLiteral("UTF8_STRING"), QStringLiteral("-o") });
}

void DesktopSession::clearClipboard() const
{
    // Through a shell's /dev/null: the one that holds the nothing would keep a pipe open.
    output(QStringLiteral("sh"),
        { QStringLiteral("-c"), QStringLiteral("xclip -selection clipboard -i /dev/null >/dev/null 2>&1") });
}

} // namespace tessaly::test
