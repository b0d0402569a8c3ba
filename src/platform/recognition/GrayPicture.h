// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace tessaly {

/// The luminance of a picture in Format_Grayscale8, which is all that recognition looks at; what is transparent lies on
/// white. Null for a null picture.
[[nodiscard]] QImage grayPicture(const QImage &picture);

} // namespace tessaly
