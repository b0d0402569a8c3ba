// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QSessionManager;

namespace tessaly {

class DesktopServices;

/// Knows what keeps the program running, and ends it when nothing does, when the user wants it, and with the session.
class ProgramEnd : public QObject {
    Q_OBJECT

public:
    /// What a start is for. It ends with its last window; one that is an errand also when nobody needs any more what it
    /// has put on the clipboard, and its notices have been read.
    enum class Purpose { Windows, Errand };

    ProgramEnd(DesktopServices &services, Purpose purpose);

    /// Runs on from now until the user quits.
    void stay() { m_stays = true; }
    bool stays() const { return m_stays; }

    int status() const { return m_status; }
    void setStatus(int status) { m_status = status; }

    /// Something is about to be done that will need the program; one letGo() for each hold().
    void hold() { ++m_held; }
    void letGo();

    void endIfUnneeded();
    /// Asks for each editor with unsaved changes, in the order in which they were opened. The first "Cancel" keeps the
    /// program, and the others are not asked for.
    void endWhenAsked();
    /// Leaves with what is kept, asking nothing: the session's end waits for nobody.
    void endAtOnce() const;

Q_SIGNALS:
    /// It was asked to end, and goes on.
    void keptRunning();

private:
    bool isNeeded() const;
    bool shouldTerminate();
    void handleCommitData(QSessionManager &session);

    DesktopServices &m_services;
    bool m_isErrand;
    bool m_stays = false;
    bool m_asks = false; ///< questions are on the screen
    int m_held = 0;
    int m_status = 0;
};

} // namespace tessaly
