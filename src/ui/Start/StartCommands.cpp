// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Start/StartCommands.h"

#include "ui/Menu/ShortcutsSheet.h"

namespace tessaly {

StartCommands::StartCommands(QWidget &window, CommandTarget &program) : m_window(window), m_program(program)
{
    CommandHooks hooks { .target = [this] { return this; } };
    hooks.isOffered = [this](CommandId command) { return knows(command); };
    m_actions = new CommandActions(&window, std::move(hooks));
}

bool StartCommands::knows(CommandId command) const
{
    switch (command) {
    case CommandId::KeyboardShortcuts:
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
    return command == CommandId::KeyboardShortcuts || m_program.canPerform(command);
}

void StartCommands::perform(CommandId command)
{
    if (command != CommandId::KeyboardShortcuts)
        return m_program.perform(command);
    auto *sheet = new ShortcutsSheet(&m_window);
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    sheet->open();
}

} // namespace tessaly
