// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <functional>
#include <optional>

namespace tessaly::test {

/// A Wayland compositor without a screen, alive as long as the object. One at a time in a process, since it sets the
/// process's environment: this process and those it starts are its clients. Sway refuses to run as root; for root it
/// runs as a user without rights. Its pointer is invisible: without a graphics card it would be in all pictures.
/// It has a keyboard, so that windows that appear take keys from the first on.
class SwaySession {
public:
    struct Monitor {
        QSize pixelSize;
        double scale = 1;
        QPoint position; ///< in points
        QString transform = QStringLiteral("normal"); ///< "90" turns by so many degrees
    };

    /// The monitors are called HEADLESS-1, HEADLESS-2, ….
    explicit SwaySession(const QList<Monitor> &monitors);
    ~SwaySession();

    /// Whether sway runs and its monitors are as asked for.
    bool isReady() const { return m_ready; }

    /// Ends the compositor under its clients.
    void end();

    /// Gives a command as swaymsg takes it; false when sway refuses it.
    static bool command(const QString &command);

    /// Runs a program to its end, with the input; its output, or nothing when it failed.
    static std::optional<QByteArray> output(
        const QString &program, const QStringList &arguments, const QByteArray &input = {});

    /// What grim sees on a monitor.
    static QImage picture(const QString &monitor);

    /// A file or a folder that the session's own user can read.
    QString path(const QString &name) const { return m_folder.filePath(name); }

private:
    bool waitFor(const std::function<bool()> &condition);
    bool writeInvisiblePointer() const;
    bool writeConfiguration(const QList<Monitor> &monitors) const;
    void start(qsizetype monitorCount);

    QTemporaryDir m_folder, m_ownRuntime;
    QProcess m_sway, m_keyboard;
    bool m_ready = false;
};

} // namespace tessaly::test
