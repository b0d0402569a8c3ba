// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace tessaly {

class CommandTarget;

/// Has a window without a menu bar answer the keys of what concerns the program and no picture: new, open, settings,
/// quit. Those that the target does not know keep their usual meaning. The target outlives the window.
void addProgramKeys(QWidget &window, CommandTarget &program);

} // namespace tessaly
