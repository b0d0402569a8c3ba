// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/MultiplyBlend.h"

#include "core/Rendering/PixelGrid.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

namespace tessaly {

namespace {

/// A premultiplied colour in the order of a pixel's bytes.
struct Source {
    std::array<uint8_t, 4> bytes; ///< blue, green, red, alpha
};

unsigned divideBy255(unsigned value) { return (value + (value >> 8) + 128) >> 8; }

Source premultiplied(const QColor &color, double coverage)
{
    const double alpha = color.alphaF() * coverage;
    const auto byte = [](double value) { return static_cast<uint8_t>(std::lround(value * 255)); };
    return { { byte(color.blueF() * alpha), byte(color.greenF() * alpha), byte(color.redF() * alpha), byte(alpha) } };
}

/// Where nothing is transparent the blend is a product with one factor for each channel.
void multiplyOpaque(uint8_t *row, int pixels, const Source &source)
{
    constexpr int block = 16;
    std::array<uint16_t, block> factors;
    for (int lane = 0; lane < block; ++lane)
        factors[lane] = lane % 4 == 3 ? 255 : uint16_t(source.bytes[lane % 4] + 255 - source.bytes[3]);
    const auto blend = [&](uint8_t *bytes, int count) {
        for (int lane = 0; lane < count; ++lane) {
            // 255 · 255 + its own high byte + 128 still fits 16 bits.
            const auto product = static_cast<uint16_t>(bytes[lane] * factors[lane]);
            bytes[lane] = static_cast<uint8_t>(static_cast<uint16_t>(product + (product >> 8) + 128) >> 8);
        }
    };
    const int bytes = pixels * 4;
    int at = 0;
    for (; at + block <= bytes; at += block)
        blend(row + at, block);
    blend(row + at, bytes - at);
}

void multiplyTranslucent(uint8_t *row, int pixels, const Source &source)
{
    const unsigned alpha = source.bytes[3];
    for (uint8_t *pixel = row; pixel < row + qsizetype(pixels) * 4; pixel += 4) {
        const unsigned below = pixel[3];
        for (int channel = 0; channel < 3; ++channel) {
            const unsigned over = source.bytes[channel], under = pixel[channel];
            pixel[channel] = uint8_t(divideBy255(over * under + over * (255 - below) + under * (255 - alpha)));
        }
        pixel[3] = uint8_t(255 - divideBy255((255 - alpha) * (255 - below)));
    }
}

/// How much of the unit interval at `index` lies within low … high.
double covered(int index, double low, double high)
{
    return std::clamp(std::min(high, index + 1.0) - std::max(low, double(index)), 0.0, 1.0);
}

} // namespace

void multiply(QImage &image, const QRect &clip, const QRectF &area, const QColor &color)
{
    const QRect touched = outwardRect(area).intersected(clip).intersected(image.rect());
    if (touched.isEmpty())
        return;
    const auto blend = image.hasAlphaChannel() ? multiplyTranslucent : multiplyOpaque;
    const int fullLeft = std::clamp(int(std::ceil(area.left() - 1e-6)), touched.left(), touched.right() + 1);
    const int fullRight = std::clamp(int(std::floor(area.right() + 1e-6)), fullLeft, touched.right() + 1);
    for (int y = touched.top(); y <= touched.bottom(); ++y) {
        const double rowCoverage = covered(y, area.top(), area.bottom());
        uint8_t *row = image.scanLine(y);
        const auto edge = [&](int from, int to) {
            for (int x = from; x < to; ++x)
                blend(row + x * 4, 1, premultiplied(color, rowCoverage * covered(x, area.left(), area.right())));
        };
        edge(touched.left(), fullLeft);
        blend(row + fullLeft * 4, fullRight - fullLeft, premultiplied(color, rowCoverage));
        edge(fullRight, touched.right() + 1);
    }
}

} // namespace tessaly
