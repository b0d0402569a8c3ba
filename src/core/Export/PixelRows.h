// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

#include <cstdint>

namespace tessaly {

/// Which samples of a picture its rows hold; the value is their number per pixel.
enum class PixelLayout { Alpha = 1, Rgb = 3, Rgba = 4 };

/// Whether a picture's alpha is 255 everywhere.
bool isOpaque(const QImage &image);

/// The rows of a picture as PNG stores them: a byte that names a filter, and 8-bit samples less what the filter
/// foresees from the pixels to the left and above. Alpha is not premultiplied in them.
class PixelRows {
public:
    /// `image` is in one of RasterImage's two formats.
    PixelRows(QImage image, PixelLayout layout);

    int rowCount() const { return m_image.height(); }
    int bytesPerPixel() const { return m_bytesPerPixel; }
    int bytesPerRow() const { return m_sampleBytes + 1; }

    /// Writes rows `first` to before `end` to `target`, bytesPerRow() each. The filters are chosen for these rows
    /// together, so the same split always gives the same bytes.
    void write(int first, int end, uint8_t *target) const;

    /// The samples of one row as they are, bytesPerRow() − 1 of them.
    void readSamples(int row, uint8_t *samples) const;

private:
    bool isLikeRowAbove(int row) const;
    bool isFlat(int first, int end) const;

    QImage m_image;
    PixelLayout m_layout;
    int m_bytesPerPixel;
    int m_sampleBytes; ///< per row
};

} // namespace tessaly
