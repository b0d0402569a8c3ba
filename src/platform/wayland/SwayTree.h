// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/WindowSource.h"

namespace tessaly::SwayTree {

/// The windows that sway's tree, as JSON, shows on the screen, front to back: full-screen ones, then floating ones from
/// the top, then tiled ones. The rectangle is that of the window with its borders and title bar, and the
/// application is named by its identifier or its X11 class.
QList<ScreenWindow> visibleWindows(const QByteArray &tree);

/// The window with the focus, visible or not; absent when a workspace has it.
std::optional<ScreenWindow> focusedWindow(const QByteArray &tree);

} // namespace tessaly::SwayTree
