// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/DesktopServices.h"

#include "core/Hotkey/CaptureHotKey.h"
#include "platform/Choice/Desktop/DesktopChoice.h"
#include "ui/Preferences/PreferenceRows.h"
#include "ui/Style/Icons.h"
#include "ui/Tray/CaptureMenu.h"

#include <QApplication>

namespace tessaly {

DesktopServices::DesktopServices()
{
    QGuiApplication::setWindowIcon(Icons::application());
    if (!DesktopChoice::windowsPlaceThemselves())
        windowToasts.setLayers(&windowLayers());
    palette.settings = [this] { return settingChoices(); };
    connect(&history, &CaptureHistory::notice, this, &DesktopServices::showNotice);
    recognizer.notice = [this](const QString &sentence) { showNotice(sentence); };
    connect(&editors, &EditorWindowController::allClosed, this, &DesktopServices::somethingGone, Qt::QueuedConnection);
    connect(&start, &StartWindowController::closed, this, &DesktopServices::somethingGone, Qt::QueuedConnection);
    connect(&textCopier, &TextCopier::finished, this, &DesktopServices::somethingGone, Qt::QueuedConnection);
    connect(&editors, &EditorWindowController::startWindowRequested, &start, &StartWindowController::show);
    connect(&clipboard, &SessionClipboard::lost, this, &DesktopServices::somethingGone);
}

DesktopServices::~DesktopServices() = default;

WindowLayers &DesktopServices::windowLayers()
{
    if (!layers)
        layers = DesktopChoice::windowLayers();
    return *layers;
}

CaptureDesk &DesktopServices::captureDesk()
{
    if (m_desk)
        return *m_desk;
    m_desk = std::make_unique<CaptureDesk>(CaptureDesk::Surroundings { settings, clipboard, exports, history,
        textCopier, quickAccessCopier, toasts, alerts, openPanels, clock, windowLayers(),
        [this](RasterImage image, const QString &title) { editors.openCapture(std::move(image), title); } });
    toasts.setCaptures(m_desk->captures());
    connect(
        &m_desk->captures(), &CaptureService::becameIdle, this, &DesktopServices::somethingGone, Qt::QueuedConnection);
    connect(&m_desk->thumbnails(), &QuickAccessController::emptied, this, &DesktopServices::somethingGone,
        Qt::QueuedConnection);
    connect(&m_desk->pins(), &PinnedScreenshotController::countsChanged, this, &DesktopServices::somethingGone,
        Qt::QueuedConnection);
    return *m_desk;
}

HotkeyService &DesktopServices::hotkeys()
{
    if (!m_hotkeys) {
        m_hotkeyBackend = DesktopChoice::hotkeys();
        m_hotkeys = std::make_unique<HotkeyService>(
            settings, *m_hotkeyBackend, [this](CaptureAction action) { run(action, captureDesk().captures()); });
    }
    return *m_hotkeys;
}

PreferencesController &DesktopServices::preferences()
{
    if (!m_preferences) {
        m_preferences = std::make_unique<PreferencesController>(PreferencesServices { settings, history, hotkeys(),
            loginItem, openPanels, alerts, editors, [this] { captureDesk().watcher().chooseFolder(); } });
        connect(m_preferences.get(), &PreferencesController::closed, this, &DesktopServices::somethingGone,
            Qt::QueuedConnection);
    }
    return *m_preferences;
}

/// Every row of the settings window; choosing one opens the window on its tab.
QList<PaletteSupply::Choice> DesktopServices::settingChoices()
{
    QList<PaletteSupply::Choice> choices;
    for (const PreferenceTab &tab : preferenceTabs()) {
        const auto show = [this, &tab] {
            (void)settings.set(SettingKeys::settingsTab, QLatin1StringView(tab.name)); // else it holds for this run
            preferences().show();
        };
        choices += { preferenceText(tab.title), show };
        for (const PreferenceGroup &group : tab.groups) {
            for (const PreferenceRow &row : group.rows)
                choices += { preferenceText(row.label), show };
        }
    }
    return choices;
}

WelcomeController &DesktopServices::welcome()
{
    if (!m_welcome) {
        m_welcome = std::make_unique<WelcomeController>(WelcomeController::Surroundings { settings, editors,
            [this] { return trayState() == TrayPresence::State::Shown; }, [this] { return regionKey(); } });
        connect(
            m_welcome.get(), &WelcomeController::closed, this, &DesktopServices::somethingGone, Qt::QueuedConnection);
    }
    return *m_welcome;
}

TrayPresence &DesktopServices::tray()
{
    if (!m_tray) {
        m_tray = std::make_unique<TrayPresence>([this] { return std::make_unique<CaptureMenu>(settings, editors); });
        connect(m_tray.get(), &TrayPresence::stateChanged, this, &DesktopServices::trayChanged);
        connect(m_tray.get(), &TrayPresence::activated, this, &DesktopServices::trayActivated);
    }
    return *m_tray;
}

QString DesktopServices::regionKey() const
{
    const bool isHeard = m_hotkeys && m_hotkeys->stateOf(CaptureAction::Region) == HotkeyService::State::Active;
    return isHeard ? CaptureHotKey::load(settings, CaptureAction::Region).keyText() : QString();
}

bool DesktopServices::hasVisibleWindow() const
{
    return editors.hasEditors() || start.isVisible() || (m_preferences && m_preferences->isVisible())
        || (m_welcome && m_welcome->isVisible());
}

void DesktopServices::bringWindowsToFront()
{
    for (QWidget *window : QApplication::topLevelWidgets()) {
        const bool isToWorkIn = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
        if (!window->isVisible() || !isToWorkIn)
            continue;
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->raise();
        window->activateWindow();
    }
}

void DesktopServices::followWatchSetting()
{
    const bool wanted = settings.value(SettingKeys::watchSystemScreenshots);
    if (wanted && !captureDesk().watcher().isWatching())
        captureDesk().watcher().start();
    else if (!wanted && m_desk)
        m_desk->watcher().stop();
}

void DesktopServices::watchAnotherFolder()
{
    if (m_desk)
        m_desk->watcher().stop();
    followWatchSetting();
}

void DesktopServices::showNotice(const QString &sentence)
{
    constexpr std::chrono::seconds duration(4);
    toasts.show(sentence, duration);
}

} // namespace tessaly
