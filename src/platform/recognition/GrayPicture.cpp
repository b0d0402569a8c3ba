// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/GrayPicture.h"

namespace tessaly {

QImage grayPicture(const QImage &picture)
{
    const QImage pixels = picture.hasAlphaChannel() ? picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                                                    : picture.convertToFormat(QImage::Format_RGB32);
    QImage gray(pixels.size(), QImage::Format_Grayscale8);
    if (gray.isNull())
        return gray;
    for (int y = 0; y < gray.height(); ++y) {
        const auto *from = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
        uchar *to = gray.scanLine(y);
        for (int x = 0; x < gray.width(); ++x) {
            // The weights of sRGB's luma, with 256 as the whole.
            const int luma = (54 * qRed(from[x]) + 183 * qGreen(from[x]) + 19 * qBlue(from[x]) + 128) >> 8;
            to[x] = uchar(std::min(255, luma + 255 - qAlpha(from[x])));
        }
    }
    return gray;
}

} // namespace tessaly
