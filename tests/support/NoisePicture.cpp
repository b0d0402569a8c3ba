// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/NoisePicture.h"

#include <random>

namespace tessaly::test {

QImage noisePicture(QSize size, QImage::Format format)
{
    QImage image(size, QImage::Format_ARGB32);
    std::minstd_rand random(1);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const auto byte = [&random] { return static_cast<int>(random() >> 8 & 255); };
            image.setPixel(x, y, qRgba(byte(), byte(), byte(), byte()));
        }
    }
    return image.convertToFormat(format);
}

} // namespace tessaly::test
