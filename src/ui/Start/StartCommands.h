// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandActions.h"

namespace tessaly {

/// What the menus and keys of the start window do: the commands of the program that need no editor.
class StartCommands final : public CommandTarget {
public:
    /// Keeps both; the actions belong to the window.
    StartCommands(QWidget &window, CommandTarget &program);

    CommandActions &actions() { return *m_actions; }

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;
    QList<MenuChoice> choices(CommandId command) const override { return m_program.choices(command); }
    void choose(CommandId command, const QString &value) override { m_program.choose(command, value); }

private:
    QWidget &m_window;
    CommandTarget &m_program;
    CommandActions *m_actions;
};

} // namespace tessaly
