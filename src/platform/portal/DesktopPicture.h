// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Screen/Display.h"

#include <QImage>
#include <QList>

/// The picture of a whole desktop that a portal writes into a file.
namespace tessaly::DesktopPicture {

/// Reads the picture and removes its file at once, since the next one would be written over it: only where the URI
/// names a file of this machine, which is a plain one that belongs to the user. A file that cannot be removed stays,
/// with a warning. Blocks; any thread.
Result<QImage> takeFile(const QString &uri);

/// What the picture shows of one display, at the display's own pixels.
///
/// The picture has one scale for all displays, the largest: the pixels of a display of that scale are its own, those of
/// any other were enlarged by the desktop and are averaged back, which is exact only where it had repeated them. Fails
/// when the picture cannot be one of all displays, as when the user chose a part.
Result<QImage> cut(const QImage &picture, const QList<Display> &displays, const Display &display);

} // namespace tessaly::DesktopPicture
