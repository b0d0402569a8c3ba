// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartWindow.h"

#include "core/Preferences/Settings.h"
#include "ui/Menu/MenuBar.h"
#include "ui/Start/StartCommands.h"
#include "ui/Style/WindowFrame.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>

namespace tessaly {

namespace {

constexpr QSize standardSize { 820, 580 };
constexpr QSize smallestSize { 620, 420 };

QList<QRect> availableScreens()
{
    QList<QRect> areas;
    for (const QScreen *screen : QGuiApplication::screens())
        areas += screen->availableGeometry();
    return areas;
}

} // namespace

StartWindow::StartWindow(const StartServices &services, StartRequests requests) :
    m_settings(services.settings),
    m_commands(
        requests.program ? std::make_unique<StartCommands>(*this, *requests.program, requests.palette) : nullptr),
    m_view(new StartView(services, std::move(requests)))
{
    setObjectName(QStringLiteral("startWindow"));
    setWindowTitle(tr("Tessaly"));
    setMinimumSize(smallestSize);
    if (m_commands)
        fillMenuBar(*menuBar(), m_commands->actions());
    setCentralWidget(m_view);
    place();
}

StartWindow::~StartWindow()
{
    if (isVisible())
        rememberPlace();
}

void StartWindow::place()
{
    const auto stored = m_settings.value(SettingKeys::startWindowFrame);
    const auto frame = stored ? WindowFrame::fromJson(*stored) : std::nullopt;
    if (frame && frame->isReachable(availableScreens())) {
        setGeometry(frame->rect());
        if (frame->maximized)
            setWindowState(Qt::WindowMaximized);
        return;
    }
    QRect rect({}, standardSize);
    rect.moveCenter(QGuiApplication::primaryScreen()->availableGeometry().center());
    setGeometry(rect);
}

void StartWindow::rememberPlace()
{
    // Where it cannot be written the window opens elsewhere next time, which nobody needs to be told.
    const QRect rect = isMaximized() ? normalGeometry() : geometry();
    static_cast<void>(m_settings.set(SettingKeys::startWindowFrame, WindowFrame::of(rect, isMaximized()).toJson()));
}

void StartWindow::bringToFront()
{
    if (!isVisible())
        m_view->prepareToShow();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void StartWindow::closeEvent(QCloseEvent *event)
{
    if (isVisible())
        rememberPlace();
    m_view->settle();
    event->accept();
    Q_EMIT closed();
}

void StartWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_view->refreshClipboard();
}

} // namespace tessaly
