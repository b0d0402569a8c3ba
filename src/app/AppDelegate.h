// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QUrl>
#include <QUuid>

#include <functional>
#include <queue>

namespace tessaly {

class DesktopServices;
class ProgramEnd;

/// Answers what the desktop asks of the program while it runs.
class AppDelegate {
public:
    /// Keeps both references.
    AppDelegate(DesktopServices &services, ProgramEnd &end);

    /// The program was started once more, or its icon was clicked: what is open comes to the front; else the start
    /// window appears.
    void reopen();
    /// Opens each, one after another and none within this call. What cannot be read is told, and the rest still opened.
    void open(const QList<QUrl> &urls);
    void openHistoryEntries(const QList<QUuid> &entries);
    /// Before the process ends: all that is kept is on the disk, and the clipboard's content with the desktop.
    void willTerminate();

private:
    void schedule(std::function<void()> opening);
    void openNext();

    DesktopServices &m_services;
    ProgramEnd &m_end;
    std::queue<std::function<void()>> m_openings; ///< the first one is under way
};

} // namespace tessaly
