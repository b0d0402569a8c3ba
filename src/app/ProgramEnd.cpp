// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ProgramEnd.h"

#include "app/DesktopServices.h"

#include <QApplication>
#include <QSessionManager>
#include <QWindow>

#include <algorithm>

namespace tessaly {

ProgramEnd::ProgramEnd(DesktopServices &services, Purpose purpose) :
    m_services(services),
    m_isErrand(purpose == Purpose::Errand)
{
    // Alerts and panels come and go before the first window and after the last.
    QApplication::setQuitOnLastWindowClosed(false);
    connect(&services, &DesktopServices::somethingGone, this, &ProgramEnd::endIfUnneeded);
    connect(&services.editors, &EditorWindowController::quitRequested, this, &ProgramEnd::endWhenAsked);
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, &ProgramEnd::handleCommitData, Qt::DirectConnection);
    connect(qGuiApp, &QGuiApplication::saveStateRequest, this,
        // The desktop's own list of what starts with the session says whether it comes back.
        [](QSessionManager &session) { session.setRestartHint(QSessionManager::RestartNever); });
}

void ProgramEnd::letGo()
{
    --m_held;
    endIfUnneeded();
}

bool ProgramEnd::isNeeded() const
{
    if (m_stays || m_held > 0 || m_services.hasVisibleWindow())
        return true;
    if (m_services.trayState() == TrayPresence::State::Shown)
        return true;
    CaptureDesk *desk = m_services.presentDesk();
    if (desk && (desk->captures().isBusy() || !desk->thumbnails().isEmpty() || desk->pins().count() > 0))
        return true;
    // Nobody would know that closing a window takes the clipboard's content away; of an errand it is all that there is.
    return m_isErrand
        && (m_services.textCopier.isReading()
            || (m_services.clipboard.holdsOurs() && !m_services.clipboard.canHandOver()));
}

void ProgramEnd::endIfUnneeded()
{
    if (isNeeded())
        return;
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto shown = std::ranges::find_if(windows, &QWindow::isVisible);
    if (!m_isErrand || shown == windows.end())
        return QApplication::exit(m_status);
    // A notice is being read. Which of several windows is asked does not matter: the next is looked for then.
    connect(*shown, &QWindow::visibleChanged, this, &ProgramEnd::endIfUnneeded,
        Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

bool ProgramEnd::shouldTerminate()
{
    if (m_asks)
        return false;
    m_asks = true;
    const bool closed = m_services.editors.closeAll();
    m_asks = false;
    // What another program has opened meanwhile has not been asked for.
    return closed && !m_services.editors.hasEditors() && m_held == 0;
}

void ProgramEnd::endWhenAsked()
{
    if (!shouldTerminate()) {
        Q_EMIT keptRunning();
        return;
    }
    m_services.start.close(); // it remembers its place
    QApplication::exit(m_status);
}

void ProgramEnd::endAtOnce() const { QApplication::exit(m_status); }

/// The session lets some programs ask; one that may not keeps what the history keeps.
void ProgramEnd::handleCommitData(QSessionManager &session)
{
    m_services.history.flush();
    if (m_services.editors.dirtyEditors().isEmpty() || !session.allowsInteraction())
        return;
    const bool mayEnd = shouldTerminate();
    session.release();
    if (!mayEnd)
        session.cancel();
}

} // namespace tessaly
