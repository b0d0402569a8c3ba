// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace tessaly::PixelMemory {

/// A picture of undefined content for large work. Its memory is asked for in huge pages where the system has them:
/// fresh small pages cost more than filling the picture. Null when the size is empty or the memory is refused.
QImage allocate(QSize pixelSize, QImage::Format format);

} // namespace tessaly::PixelMemory
