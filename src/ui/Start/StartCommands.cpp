// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartCommands.h"

#include "ui/Menu/CommandPalette.h"
#include "ui/Menu/ShortcutsSheet.h"

namespace tessaly {

StartCommands::StartCommands(QWidget &window, CommandTarget &program, PaletteSupply *palette) :
    m_window(window),
    m_program(program),
    m_palette(palette)
{
    CommandHooks hooks { .target = [this] { return this; } };
    hooks.isOffered = [this](CommandId command) {
        switch (command) {
        case CommandId::Share: // not on every desktop
        case CommandId::CaptureWindow:
        case CommandId::CaptureFrontWindow:
            return knows(command);
        default:
            return true;
        }
    };
    hooks.currentTool = [] { return std::optional<Tool>(); };
    m_actions = new CommandActions(&window, std::move(hooks));
}

bool StartCommands::knows(CommandId command) const
{
    switch (command) {
    case CommandId::KeyboardShortcuts:
    case CommandId::CommandPalette:
        return true;
    case CommandId::NewTab: // of which window?
    case CommandId::StartWindow:
        return false;
    default:
        return m_program.knows(command);
    }
}

bool StartCommands::canPerform(CommandId command) const
{
    return command == CommandId::KeyboardShortcuts || command == CommandId::CommandPalette
        || m_program.canPerform(command);
}

void StartCommands::perform(CommandId command)
{
    if (command == CommandId::KeyboardShortcuts)
        return ShortcutsSheet::showAbove(m_window);
    if (command == CommandId::CommandPalette)
        return CommandPalette::open(m_window, *m_actions, m_palette);
    m_program.perform(command);
}

} // namespace tessaly
