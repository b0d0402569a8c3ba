// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/Commands.h"

class QMenuBar;

namespace tessaly {

class CommandActions;

/// Fills the menu bar of a window with what is offered; a menu that would be empty is left out. The state of the
/// actions is asked again whenever a menu opens. The actions must live as long as the bar.
void fillMenuBar(QMenuBar &bar, CommandActions &actions);

/// What the menu is called, as the user reads it, without a mnemonic.
QString menuTitle(CommandMenu menu);

} // namespace tessaly
