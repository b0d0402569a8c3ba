// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Editor/WindowCommands.h"

#include "ui/Editor/EditorView.h"

namespace tessaly {

WindowCommands::WindowCommands(CommandTarget &program, std::function<EditorView *()> editor) :
    m_program(program),
    m_editor(std::move(editor))
{
}

void WindowCommands::add(CommandId command, std::function<void()> act) { m_own[command] = std::move(act); }

CommandTarget *WindowCommands::targetOf(CommandId command) const
{
    EditorView *editor = m_editor();
    if (editor && editor->knows(command))
        return editor;
    return m_program.knows(command) ? &m_program : nullptr;
}

bool WindowCommands::knows(CommandId command) const { return m_own.contains(command) || targetOf(command); }

bool WindowCommands::canPerform(CommandId command) const
{
    if (m_own.contains(command))
        return true;
    const CommandTarget *target = targetOf(command);
    return target && target->canPerform(command);
}

void WindowCommands::perform(CommandId command)
{
    if (const auto own = m_own.find(command); own != m_own.end())
        own->second();
    else if (CommandTarget *target = targetOf(command))
        target->perform(command);
}

} // namespace tessaly
