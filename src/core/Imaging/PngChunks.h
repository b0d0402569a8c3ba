// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QRgb>
#include <QSize>

#include <optional>
#include <vector>

namespace tessaly {

/// What a PNG file of the common kinds consists of: 8 bits a sample, not interlaced, in sRGB or without a word about
/// colours. It refers to the bytes of the file.
struct PngChunks {
    enum class Color { Grey = 0, Rgb = 2, Palette = 3, GreyAlpha = 4, Rgba = 6 };

    QSize size;
    Color color = Color::Rgb;
    std::vector<QRgb> palette; ///< not premultiplied
    std::vector<QByteArrayView> data; ///< the parts of the compressed rows

    int bytesPerPixel() const;
    bool isOpaque() const;

    /// Empty for any other kind of file, and for one that is damaged.
    static std::optional<PngChunks> read(QByteArrayView file);
};

} // namespace tessaly
