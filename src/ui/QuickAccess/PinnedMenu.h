// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QMenu;

namespace tessaly {

class PinnedScreenshotWindow;

/// Fills the context menu of a pinned screenshot as it is now. The window must outlive the menu.
void fillPinnedMenu(QMenu &menu, PinnedScreenshotWindow &window);

} // namespace tessaly
