// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace tessaly {

/// A small picture of a file, at most `pixelSize` on either side and never enlarged. A document's is the one that its
/// package brings along, else one made from its capture. Null for what is no picture, cannot be read, or is too large
/// to be worth it. Any thread; it may take as long as the disk does.
QImage fileThumbnail(const QString &path, QSize pixelSize);

/// The same for a folder that is known to be a package.
QImage packageThumbnail(const QString &packagePath, QSize pixelSize);

} // namespace tessaly
