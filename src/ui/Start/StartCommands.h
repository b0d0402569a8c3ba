// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandActions.h"

namespace tessaly {

class PaletteSupply;

/// What the menus and keys of the start window do: the commands of the program that need no editor. Those of an editor
/// are shown, and disabled.
class StartCommands final : public CommandTarget {
public:
    /// Keeps all three; the actions belong to the window.
    StartCommands(QWidget &window, CommandTarget &program, PaletteSupply *palette);

    CommandActions &actions() { return *m_actions; }

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;
    QList<MenuChoice> choices(CommandId command) const override { return m_program.choices(command); }
    void choose(CommandId command, const QString &value) override { m_program.choose(command, value); }
    bool canClear(CommandId command) const override { return m_program.canClear(command); }
    void clear(CommandId command) override { m_program.clear(command); }

private:
    QWidget &m_window;
    CommandTarget &m_program;
    PaletteSupply *m_palette;
    CommandActions *m_actions;
};

} // namespace tessaly
