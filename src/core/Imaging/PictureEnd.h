// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

namespace tessaly {

/// Whether a file goes on to the end of its first picture. For JPEG, GIF and BMP, which Qt decodes as far as they go
/// and pads with grey; for every other format it is true, because decoding itself fails there.
bool hasWholePicture(QByteArrayView bytes);

} // namespace tessaly
