// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Presence.h"

#include "app/DesktopServices.h"
#include "core/Hotkey/CaptureHotKey.h"
#include "core/Preferences/AppPresence.h"

#include <QTimer>

namespace tessaly {

Presence::Presence(DesktopServices &services) : m_services(services)
{
    connect(&services.settings, &Settings::changed, this, &Presence::followSetting);
    connect(&services, &DesktopServices::trayChanged, this, &Presence::handleTray);
    connect(&services, &DesktopServices::hotkeysReloaded, this, &Presence::refreshHint);
}

void Presence::showInTray()
{
    m_isInUse = true;
    refresh();
}

void Presence::ensureVisible()
{
    m_wantsWindow = true;
    showInTray();
    handleTray();
    // A desktop that runs shows an icon at once; a panel may be just starting, and be waited for, but not by the user.
    constexpr std::chrono::milliseconds patience(400);
    QTimer::singleShot(patience, this, [this] {
        if (m_wantsWindow && !m_services.tray().isSettling())
            showWindow();
    });
}

void Presence::followSetting(const QString &key)
{
    if (key != QLatin1StringView(SettingKeys::showInDock.name)
        && key != QLatin1StringView(SettingKeys::showInMenuBar.name))
        return;
    AppPresence::apply(m_services.settings);
    if (m_isInUse)
        refresh();
}

void Presence::refresh()
{
    const bool wanted = AppPresence::showInMenuBar(m_services.settings);
    if (wanted || m_services.trayState() != TrayPresence::State::Off)
        m_services.tray().setWanted(wanted);
}

void Presence::handleTray()
{
    refreshHint();
    const TrayPresence::State state = m_services.trayState();
    if (state == TrayPresence::State::Shown)
        m_wantsWindow = false;
    if (!m_wantsWindow || state == TrayPresence::State::Waiting)
        return;
    showWindow();
}

void Presence::showWindow()
{
    m_wantsWindow = false;
    m_standsIn = true;
    refreshHint();
    if (!m_services.hasVisibleWindow())
        m_services.start.show();
}

void Presence::refreshHint()
{
    const TrayPresence::State state = m_services.trayState();
    const bool isMissing
        = state == TrayPresence::State::NoTray || (state == TrayPresence::State::Waiting && m_standsIn);
    m_services.start.setHint(isMissing ? hint() : QString());
}

QString Presence::hint() const
{
    const QString key = m_services.regionKey();
    return key.isEmpty() ? tr("This desktop has no tray. When this window is closed, start Tessaly again to see it; "
                              "Ctrl+Q quits it.")
                         : tr("This desktop has no tray. When this window is closed, press %1 to capture, or start "
                              "Tessaly again to see it; Ctrl+Q quits it.")
                               .arg(key);
}

} // namespace tessaly
