// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/PictureText.h"

namespace tessaly::test {

QStringList asText(const QImage &picture)
{
    QStringList rows;
    for (int y = 0; y < picture.height(); ++y) {
        QString row;
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            const bool blank = qAlpha(pixel) == 0 || (pixel & 0xffffff) == 0xffffff;
            row += blank ? u'.' : u'#';
        }
        rows += row;
    }
    return rows;
}

} // namespace tessaly::test
