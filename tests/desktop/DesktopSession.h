// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/desktop/AccessibleTree.h"
#include "tests/support/VirtualScreen.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>
#include <optional>

namespace tessaly::test {

/// A desktop of its own: X server, window manager, session bus, and a home folder, with hands on mouse and keyboard.
/// One at a time in a process, since it sets the process's environment.
///
/// On a Wayland compositor, see SwaySession, it is the session bus and the home folder only.
class DesktopSession {
public:
    enum class WindowSystem { Wayland };

    explicit DesktopSession(const QString &geometry);
    /// On the compositor of this process's environment.
    explicit DesktopSession(WindowSystem);
    ~DesktopSession();

    /// Whether all of it runs.
    bool isReady() const { return m_ready; }

    /// A path in the home folder.
    QString path(const QString &name) const { return m_home.filePath(name); }

    /// Stores settings before a program starts. Unless they say otherwise nobody is welcomed.
    void writeSettings(const QByteArray &json) const;

    /// Makes two monitors of the screen's halves: LEFT with one pixel a point, RIGHT with two. Before a program starts.
    void splitMonitors() const;
    /// Shows a picture on the root window.
    void showBackground(const QImage &picture) const;

    /// Starts Tessaly's windows. `tree()` then sees them.
    bool start(const QStringList &arguments);
    /// Starts Tessaly without a window, with these settings, and waits until it takes requests.
    bool startResident(const QByteArray &settings);
    /// The same with the settings that there are. It has then done all that belongs to its start: it hears its hot
    /// keys.
    bool startResident();
    /// What is started from now on is started through this command, of which a program and its arguments are the end.
    void startThrough(const QStringList &command) { m_starter = command; }
    /// Ends Tessaly as the end of a session does; its exit status.
    int stop();
    qint64 processId() const { return m_program.processId(); }
    const AccessibleTree &tree() const { return *m_tree; }
    bool isRunning() const { return m_program.state() == QProcess::Running; }
    /// Waits for the program's end by itself; its exit status, -1 when it goes on.
    int waitForEnd();

    /// The most bytes that a file Tessaly writes may have; more fails as on a full disk. -1 takes the limit away.
    void limitFiles(qint64 bytes) const;

    /// Starts a command of Tessaly beside the program, and lets it run.
    std::unique_ptr<QProcess> command(const QStringList &arguments) const;
    /// Waits for its end; its exit status, -1 when it goes on.
    static int finish(QProcess &command);

    /// What the running Tessaly answers on the session bus, errors included: a method with its interface, then its
    /// arguments.
    QByteArray ask(const QStringList &methodAndArguments) const;

    /// The command line tool.
    static QString program();
    /// Runs it to its end; its output, empty when it failed.
    QByteArray tessaly(const QStringList &arguments) const { return output(program(), arguments); }
    /// Runs a program to its end; its output, empty when it failed.
    QByteArray output(const QString &program, const QStringList &arguments) const;

    /// Keys as xdotool names them: "ctrl+s", "Return".
    void key(const QString &keys) const;
    void type(const QString &text) const;
    void click(QPoint at, int button = 1) const;
    void doubleClick(QPoint at) const;
    /// Presses at the first point, passes the others in small steps and releases at the last, while `modifier`, where
    /// there is one, is held.
    void drag(const QList<QPoint> &way, const QString &modifier = {}) const;

    /// Clicks the middle of the control called so; false when it does not appear.
    bool click(const QString &control, const QString &role = {}) const;
    /// Waits until no control of that name is on the screen; false when it stays.
    bool waitUntilGone(const QString &control) const;

    /// The pixels of a picture file as the screen has them: opaque, of no colour space. Null when it cannot be read.
    static QImage pixels(const QString &file);

    /// The picture on the clipboard; null when there is none.
    QImage clipboardPicture() const;
    QByteArray clipboardText() const;
    /// Puts nothing there.
    void clearClipboard() const;

private:
    void prepareEnvironment(const char *platform);
    bool startBus();
    bool startWindowManager();
    void xdotool(const QStringList &arguments) const;
    bool launch(const QString &name, const QStringList &arguments);

    QTemporaryDir m_home;
    std::optional<VirtualScreen> m_screen;
    QProcess m_bus, m_windowManager, m_program;
    QStringList m_starter;
    std::unique_ptr<AccessibleTree> m_tree;
    bool m_ready = false;
};

} // namespace tessaly::test
