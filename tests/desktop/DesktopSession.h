// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/desktop/AccessibleTree.h"
#include "tests/support/VirtualScreen.h"

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <memory>

namespace tessaly::test {

/// A desktop of its own: X server, window manager, session bus, and a home folder, with hands on mouse and keyboard.
/// One at a time in a process, since it sets the process's environment.
class DesktopSession {
public:
    explicit DesktopSession(const QString &geometry);
    ~DesktopSession();

    /// Whether all of it runs.
    bool isReady() const { return m_ready; }

    /// A path in the home folder.
    QString path(const QString &name) const { return m_home.filePath(name); }

    /// Stores settings before a program starts.
    void writeSettings(const QByteArray &json) const;

    /// Starts Tessaly's windows. `tree()` then sees them.
    bool start(const QStringList &arguments);
    const AccessibleTree &tree() const { return *m_tree; }
    bool isRunning() const { return m_program.state() == QProcess::Running; }
    /// Waits for the program's end by itself; its exit status, -1 when it goes on.
    int waitForEnd();

    /// The most bytes that a file Tessaly writes may have; more fails as on a full disk. -1 takes the limit away.
    void limitFiles(qint64 bytes) const;

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
    /// Waits until no control of that name is on the screen; false after 15 seconds.
    bool waitUntilGone(const QString &control) const;

    /// The picture on the clipboard; null when there is none.
    QImage clipboardPicture() const;

private:
    bool startBus();
    bool startWindowManager();
    void xdotool(const QStringList &arguments) const;

    QTemporaryDir m_home;
    VirtualScreen m_screen;
    QProcess m_bus, m_windowManager, m_program;
    std::unique_ptr<AccessibleTree> m_tree;
    bool m_ready = false;
};

} // namespace tessaly::test
