// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <random>

namespace tessaly::test {

enum class Transparency { None, Binary, Soft };

/// A picture of stripes, flat areas and noise in at most 200 colours, the same for the same arguments, in one of
/// RasterImage's two formats.
inline QImage samplePicture(QSize size, Transparency transparency, unsigned seed = 1)
{
    std::mt19937 random(seed);
    std::vector<QRgb> colors;
    for (int index = 0; index < 200; ++index) {
        const auto color = static_cast<QRgb>(random());
        const bool clear = transparency == Transparency::Binary && index % 5 == 0;
        const int alpha = transparency == Transparency::Soft ? qAlpha(color) : clear ? 0 : 255;
        colors.push_back(qPremultiply(qRgba(qRed(color), qGreen(color), qBlue(color), alpha)));
    }
    const bool opaque = transparency == Transparency::None;
    QImage picture(size, opaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < size.height(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(picture.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int kind = (x / 40 + y / 16) % 3;
            const size_t index = kind == 0 ? (x / 40 + y / 16) : kind == 1 ? size_t(x * 3 + y) : random();
            row[x] = colors[index % colors.size()];
        }
    }
    return picture;
}

} // namespace tessaly::test
