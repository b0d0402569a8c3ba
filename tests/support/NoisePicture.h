// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace tessaly::test {

/// Random pixels, the same in every run; valid ones where the format is premultiplied.
QImage noisePicture(QSize size, QImage::Format format);

} // namespace tessaly::test
