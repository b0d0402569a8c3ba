// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/IndexedPicture.h"

#include <array>

namespace tessaly {

namespace {

const QRgb *pixelsOf(const QImage &image, int row) { return reinterpret_cast<const QRgb *>(image.constScanLine(row)); }

/// Gives every new colour the next index, up to 256 of them.
class ColorIndex {
public:
    /// The colour's index, or -1 when there is no index left for it.
    int indexOf(QRgb color)
    {
        size_t slot = color * 2654435761u >> 22;
        for (; m_slots[slot] >= 0; slot = (slot + 1) % m_slots.size()) {
            if (m_colors[size_t(m_slots[slot])] == color)
                return m_slots[slot];
        }
        if (m_colors.size() == 256)
            return -1;
        m_slots[slot] = static_cast<int16_t>(m_colors.size());
        m_colors.push_back(color);
        return m_slots[slot];
    }

    std::vector<QRgb> takeColors() { return std::move(m_colors); }

private:
    static constexpr std::array<int16_t, 1024> emptySlots()
    {
        std::array<int16_t, 1024> slots {};
        slots.fill(-1);
        return slots;
    }

    std::array<int16_t, 1024> m_slots = emptySlots();
    std::vector<QRgb> m_colors;
};

} // namespace

std::optional<IndexedPicture> indexedExactly(const QImage &image)
{
    const bool hasAlpha = image.hasAlphaChannel();
    IndexedPicture result { image.size(), {}, {} };
    result.indices.reserve(static_cast<size_t>(image.width()) * static_cast<size_t>(image.height()));
    ColorIndex colors;
    for (int y = 0; y < image.height(); ++y) {
        const QRgb *row = pixelsOf(image, y);
        int index = 0;
        for (int x = 0; x < image.width(); ++x) {
            if (x == 0 || row[x] != row[x - 1])
                index = colors.indexOf(hasAlpha ? row[x] : row[x] | 0xff000000u);
            if (index < 0)
                return std::nullopt;
            result.indices.push_back(static_cast<uint8_t>(index));
        }
    }
    result.colors = colors.takeColors();
    return result;
}

QImage withBinaryAlpha(const QImage &image)
{
    if (!image.hasAlphaChannel())
        return image;
    QImage result(image.size(), QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        const QRgb *source = pixelsOf(image, y);
        auto *target = reinterpret_cast<QRgb *>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x)
            target[x] = qAlpha(source[x]) < 128 ? 0 : qUnpremultiply(source[x]) | 0xff000000u;
    }
    return result;
}

} // namespace tessaly
