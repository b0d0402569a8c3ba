// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/Menu/CommandTarget.h"

class QAction;
class QMenu;

namespace tessaly {

/// Adds a command to a menu that belongs to one place, as a context menu does: with its icon and its key shown, but
/// without the key being taken, enabled as `target` says now. The target must outlive the menu.
QAction *addCommand(QMenu &menu, CommandId command, CommandTarget &target);

} // namespace tessaly
