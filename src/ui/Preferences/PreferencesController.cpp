// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/PreferencesController.h"

#include "ui/Menu/ProgramKeys.h"
#include "ui/Preferences/PreferencesWindow.h"

#include <QPointer>

namespace tessaly {

struct PreferencesController::Implementation {
    explicit Implementation(const PreferencesServices &with) :
        services(with),
        binding(with.settings, with.alerts),
        startLanguage(with.settings.value(SettingKeys::appLanguage))
    {
    }

    PreferencesServices services;
    SettingBinding binding;
    QString startLanguage;
    QPointer<PreferencesWindow> window;
};

PreferencesController::PreferencesController(const PreferencesServices &services) :
    m_implementation(std::make_unique<Implementation>(services))
{
}

PreferencesController::~PreferencesController() { delete m_implementation->window; }

void PreferencesController::show()
{
    auto &window = m_implementation->window;
    if (!window) {
        window = new PreferencesWindow(
            { m_implementation->services, m_implementation->binding, m_implementation->startLanguage });
        addProgramKeys(*window, m_implementation->services.program);
        connect(window, &PreferencesWindow::closed, this, &PreferencesController::closed);
    }
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show();
    window->raise();
    window->activateWindow();
}

bool PreferencesController::isVisible() const
{
    return m_implementation->window && m_implementation->window->isVisible();
}

void PreferencesController::close()
{
    if (m_implementation->window)
        m_implementation->window->close();
}

} // namespace tessaly
