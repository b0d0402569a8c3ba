// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandTarget.h"

#include <functional>
#include <map>

namespace tessaly {

class EditorView;

/// Where the commands of a window go: to the window itself, to the current editor, or to the program.
class WindowCommands final : public CommandTarget {
public:
    /// Keeps `program`; `editor` gives the current one or a null pointer.
    WindowCommands(CommandTarget &program, std::function<EditorView *()> editor);

    /// A command that the window does by itself.
    void add(CommandId command, std::function<void()> act);

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;
    QList<MenuChoice> choices(CommandId command) const override { return m_program.choices(command); }
    void choose(CommandId command, const QString &value) override { m_program.choose(command, value); }
    bool canClear(CommandId command) const override { return m_program.canClear(command); }
    void clear(CommandId command) override { m_program.clear(command); }

private:
    CommandTarget *targetOf(CommandId command) const;

    CommandTarget &m_program;
    std::function<EditorView *()> m_editor;
    std::map<CommandId, std::function<void()>> m_own;
};

} // namespace tessaly
