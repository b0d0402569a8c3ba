// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/X11Connection.h"

#include <QImage>

/// Windows of the type "desktop": what a file manager draws its icons in, below all others.
namespace tessaly::DesktopIcons {

/// Puts the server's background in the place of what such windows show in `picture`, which was taken of the root window
/// from `pixelOrigin`: the picture that the desktop has set as the background, black without one.
void replaceWithBackground(const X11Connection &connection, QImage &picture, QPoint pixelOrigin);

} // namespace tessaly::DesktopIcons
