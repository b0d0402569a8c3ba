// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace tessaly {

/// How far each pixel of a picture in Format_Grayscale8 is from the background that it stands on: 0 on the background,
/// up to 255. Dark text on light and light text on dark come out alike.
[[nodiscard]] QImage inkPicture(const QImage &gray);

} // namespace tessaly
