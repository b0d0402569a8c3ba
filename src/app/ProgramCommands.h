// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/CaptureCommands.h"

namespace tessaly {

class DesktopServices;

/// The commands of the program that belong to no editor: its captures, and the windows beside the work. Editors, start
/// window, tray, palette and welcome guide reach it through the EditorWindowController, which adds its own.
class ProgramCommands final : public CommandTarget {
public:
    /// Uses no service before a command is asked for.
    explicit ProgramCommands(DesktopServices &services);

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;

    /// The displays, for "Full Screen on…", and the delays of the timer.
    QList<MenuChoice> choices(CommandId command) const override;
    void choose(CommandId command, const QString &value) override;

private:
    DesktopServices &m_services;
    CaptureCommands m_captures;
};

} // namespace tessaly
