// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandTarget.h"

#include <functional>

namespace tessaly {

class CaptureDesk;

/// The commands that capture, and those for all pinned screenshots. What they need is made with the first capture: a
/// menu that only shows them makes nothing.
class CaptureCommands final : public CommandTarget {
public:
    struct Desk {
        std::function<CaptureDesk *()> present; ///< null while there is none
        std::function<CaptureDesk &()> made;
    };
    explicit CaptureCommands(Desk desk) : m_desk(std::move(desk)) { }

    bool knows(CommandId command) const override;
    bool canPerform(CommandId command) const override;
    void perform(CommandId command) override;

    /// The displays, for "Full Screen on…".
    QList<MenuChoice> choices(CommandId command) const override;
    void choose(CommandId command, const QString &value) override;

private:
    Desk m_desk;
};

} // namespace tessaly
