// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/ProgramCommands.h"

#include "app/DesktopServices.h"
#include "core/Preferences/CaptureDelays.h"

#include <algorithm>

namespace tessaly {

namespace {

using Id = CommandId;

void openLastCapture(DesktopServices &services)
{
    const Outcome outcome = services.intents.perform(Intent::OpenLastCapture);
    if (!outcome)
        services.showNotice(outcome.failure().message);
}

struct Row {
    CommandId id;
    void (*act)(DesktopServices &services);
};

constexpr Row rows[] {
    { Id::Settings, [](DesktopServices &services) { services.preferences().show(); } },
    { Id::About, [](DesktopServices &services) { services.welcome().showAbout(); } },
    { Id::Help, [](DesktopServices &services) { services.welcome().showHelp(); } },
    { Id::WhatsNew, [](DesktopServices &services) { services.welcome().showWhatsNew(); } },
    { Id::WelcomeGuide, [](DesktopServices &services) { services.welcome().showGuide(); } },
    { Id::OpenTessaly, [](DesktopServices &services) { services.editors.activateOrOpenBlank(); } },
    { Id::OpenLastCapture, openLastCapture }, { Id::CaptureTimer, [](DesktopServices &) {} }, // its choices act
};

const Row *rowOf(CommandId command)
{
    const auto found = std::ranges::find(rows, command, &Row::id);
    return found == std::end(rows) ? nullptr : found;
}

} // namespace

ProgramCommands::ProgramCommands(DesktopServices &services) :
    m_services(services),
    m_captures({ [&services] { return services.presentDesk(); },
        [&services]() -> CaptureDesk & { return services.captureDesk(); } })
{
}

bool ProgramCommands::knows(CommandId command) const { return rowOf(command) || m_captures.knows(command); }

bool ProgramCommands::canPerform(CommandId command) const
{
    if (command == Id::OpenLastCapture) {
        const CaptureHistory &history = m_services.history;
        // What is not read yet may be there.
        return history.isEnabled() && (!history.isLoaded() || !history.entries().isEmpty());
    }
    return rowOf(command) || m_captures.canPerform(command);
}

void ProgramCommands::perform(CommandId command)
{
    if (const Row *row = rowOf(command))
        row->act(m_services);
    else
        m_captures.perform(command);
}

QList<MenuChoice> ProgramCommands::choices(CommandId command) const
{
    if (command != Id::CaptureTimer)
        return m_captures.choices(command);
    QList<MenuChoice> choices;
    for (const CaptureDelay &delay : captureDelays)
        choices += { QCoreApplication::translate("CaptureDelays", delay.title), QString::number(delay.seconds) };
    return choices;
}

void ProgramCommands::choose(CommandId command, const QString &value)
{
    if (command != Id::CaptureTimer)
        return m_captures.choose(command, value);
    const Outcome outcome = m_services.settings.set(SettingKeys::captureDelay, value.toInt());
    if (!outcome) // it holds until the end of the program
        m_services.showNotice(outcome.failure().message);
}

} // namespace tessaly
