// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Welcome/WelcomeController.h"

#include "core/Preferences/Settings.h"
#include "ui/Menu/ProgramKeys.h"
#include "ui/Welcome/AboutWindow.h"
#include "ui/Welcome/HelpWindow.h"
#include "ui/Welcome/ProgramVersion.h"
#include "ui/Welcome/WelcomeGuide.h"
#include "ui/Welcome/WhatsNewSheet.h"

#include <QPointer>
#include <QVersionNumber>

#include <algorithm>
#include <map>

namespace tessaly {

namespace {

enum class Page { Guide, WhatsNew, About, Help };

} // namespace

struct WelcomeController::Implementation {
    Surroundings surroundings;
    std::map<Page, QPointer<QDialog>> windows;

    void show(WelcomeController &controller, Page page, const std::function<QDialog *()> &make);
};

void WelcomeController::Implementation::show(
    WelcomeController &controller, Page page, const std::function<QDialog *()> &make)
{
    QPointer<QDialog> &window = windows[page];
    if (!window || !window->isVisible()) {
        window = make();
        addProgramKeys(*window, surroundings.program);
        connect(window, &QDialog::finished, &controller, &WelcomeController::closed);
    }
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

WelcomeController::WelcomeController(const Surroundings &surroundings) :
    m_implementation(new Implementation { surroundings, {} })
{
}

WelcomeController::~WelcomeController()
{
    for (const auto &[page, window] : m_implementation->windows)
        delete window.data();
}

void WelcomeController::noteLaunch()
{
    Settings &settings = m_implementation->surroundings.settings;
    // Where it cannot be written the next start counts as the first.
    if (settings.value(SettingKeys::whatsNewVersion).isEmpty())
        static_cast<void>(settings.set(SettingKeys::whatsNewVersion, programVersion()));
}

bool WelcomeController::owesWhatsNew() const
{
    const QString seen = m_implementation->surroundings.settings.value(SettingKeys::whatsNewVersion);
    return !seen.isEmpty() && QVersionNumber::fromString(seen) < QVersionNumber::fromString(programVersion());
}

void WelcomeController::showGuideIfNeeded()
{
    const Settings &settings = m_implementation->surroundings.settings;
    if (settings.value(SettingKeys::showOnboardingOnLaunch) && !settings.value(SettingKeys::didShowOnboarding))
        showGuide();
}

void WelcomeController::showGuide()
{
    const Surroundings &with = m_implementation->surroundings;
    // Where it cannot be written the guide comes once too often.
    static_cast<void>(with.settings.set(SettingKeys::didShowOnboarding, true));
    m_implementation->show(*this, Page::Guide, [&with] {
        return new WelcomeGuide(with.settings, with.program,
            { .hasTray = with.hasTray && with.hasTray(), .regionKey = with.regionKey ? with.regionKey() : QString() });
    });
}

void WelcomeController::showWhatsNew()
{
    static_cast<void>(m_implementation->surroundings.settings.set(SettingKeys::whatsNewVersion, programVersion()));
    m_implementation->show(*this, Page::WhatsNew, [] { return new WhatsNewSheet; });
}

void WelcomeController::showAbout()
{
    m_implementation->show(*this, Page::About, [] { return new AboutWindow; });
}

void WelcomeController::showHelp()
{
    m_implementation->show(*this, Page::Help, [] { return new HelpWindow; });
}

bool WelcomeController::isVisible() const
{
    return std::ranges::any_of(
        m_implementation->windows, [](const auto &each) { return each.second && each.second->isVisible(); });
}

void WelcomeController::close()
{
    for (const auto &[page, window] : m_implementation->windows) {
        if (!window)
            continue;
        window->disconnect(this); // only what the user closes is told
        window->close();
    }
}

} // namespace tessaly
