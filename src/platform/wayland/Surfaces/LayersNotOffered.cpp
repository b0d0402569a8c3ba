// SPDX-License-Identifier: GPL-3.0-or-later
// Stands for the layers in a build without the descriptions of the wlr protocols, or with a Qt whose surfaces cannot be
// had: covers are full-screen windows then.
#include "platform/wayland/Surfaces/LayerShell.h"

namespace tessaly {

std::unique_ptr<LayerShell> LayerShell::create() { return nullptr; }

} // namespace tessaly
