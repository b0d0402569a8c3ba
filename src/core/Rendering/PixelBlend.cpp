// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/PixelBlend.h"

#include "core/Rendering/PixelGrid.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

namespace tessaly::PixelBlend {

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

// Twice as fast with the wider registers, and the same bytes. Sanitizers cannot resolve such functions at start-up.
#if defined(__SANITIZE_ADDRESS__) || !defined(__x86_64__)
#define WIDE_WHERE_POSSIBLE
#else
#define WIDE_WHERE_POSSIBLE __attribute__((target_clones("avx2", "default")))
#endif

/// Each byte becomes byte × factor ÷ 255 + addend; both lists repeat after four lanes.
WIDE_WHERE_POSSIBLE
void scaleAndAddLanes(uint8_t *bytes, int count, const uint16_t *factors, const uint16_t *addends)
{
    constexpr int block = 32;
    int at = 0;
    for (; at + block <= count; at += block) {
        for (int lane = 0; lane < block; ++lane) {
            // 255 · 255 + its own high byte + 128 still fits 16 bits.
            const auto product = static_cast<uint16_t>(bytes[at + lane] * factors[lane]);
            const auto scaled = static_cast<uint16_t>(static_cast<uint16_t>(product + (product >> 8) + 128) >> 8);
            bytes[at + lane] = static_cast<uint8_t>(scaled + addends[lane]);
        }
    }
    for (int lane = 0; at < count; ++at, ++lane) {
        const unsigned product = unsigned(bytes[at]) * factors[lane];
        bytes[at] = static_cast<uint8_t>(((product + (product >> 8) + 128) >> 8) + addends[lane]);
    }
}

#undef WIDE_WHERE_POSSIBLE

/// The same for whole pixels, with one factor and addend for each channel.
void scaleAndAdd(uint8_t *row, int pixels, const std::array<uint8_t, 4> &factor, const std::array<uint8_t, 4> &addend)
{
    std::array<uint16_t, 32> factors, addends;
    for (size_t lane = 0; lane < factors.size(); ++lane) {
        factors[lane] = factor[lane % 4];
        addends[lane] = addend[lane % 4];
    }
    scaleAndAddLanes(row, pixels * 4, factors.data(), addends.data());
}

/// Where nothing is transparent the blend is a product with one factor for each channel.
void multiplyOpaque(uint8_t *row, int pixels, const Source &source)
{
    std::array<uint8_t, 4> factor;
    for (size_t channel = 0; channel < 4; ++channel)
        factor[channel] = channel == 3 ? 255 : uint8_t(source.bytes[channel] + 255 - source.bytes[3]);
    scaleAndAdd(row, pixels, factor, {});
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

void multiply(QImage &image, const QRect &clip, const QRectF &area, const QColor &color, QPoint origin)
{
    const QRect touched = outwardRect(area).intersected(clip).intersected(image.rect().translated(origin));
    if (touched.isEmpty())
        return;
    const auto blend = image.hasAlphaChannel() ? multiplyTranslucent : multiplyOpaque;
    const int fullLeft = std::clamp(int(std::ceil(area.left() - 1e-6)), touched.left(), touched.right() + 1);
    const int fullRight = std::clamp(int(std::floor(area.right() + 1e-6)), fullLeft, touched.right() + 1);
    for (int y = touched.top(); y <= touched.bottom(); ++y) {
        const double rowCoverage = covered(y, area.top(), area.bottom());
        uint8_t *row = image.scanLine(y - origin.y());
        const auto at = [&](int x) { return row + qsizetype(x - origin.x()) * 4; };
        const auto edge = [&](int from, int to) {
            for (int x = from; x < to; ++x)
                blend(at(x), 1, premultiplied(color, rowCoverage * covered(x, area.left(), area.right())));
        };
        edge(touched.left(), fullLeft);
        blend(at(fullLeft), fullRight - fullLeft, premultiplied(color, rowCoverage));
        edge(fullRight, touched.right() + 1);
    }
}

namespace {

/// All four bytes of a premultiplied pixel times `factor` ÷ 255, two at a time.
uint32_t scaled(uint32_t pixel, uint32_t factor)
{
    const auto half = [factor](uint32_t bytes) {
        const uint32_t product = bytes * factor;
        return (product + (product >> 8 & 0x00ff00ffu) + 0x00800080u) >> 8 & 0x00ff00ffu;
    };
    return half(pixel & 0x00ff00ffu) | half(pixel >> 8 & 0x00ff00ffu) << 8;
}

void layOver(QRgb *row, int pixels, QRgb source)
{
    const uint32_t through = 255 - qAlpha(source);
    constexpr int shortRun = 8;
    if (through == 0) {
        std::fill_n(row, pixels, source);
    } else if (pixels < shortRun) {
        for (int x = 0; x < pixels; ++x)
            row[x] = source + scaled(row[x], through);
    } else {
        const auto bytes = std::bit_cast<std::array<uint8_t, 4>>(source);
        const auto factor = uint8_t(through);
        scaleAndAdd(reinterpret_cast<uint8_t *>(row), pixels, { factor, factor, factor, factor }, bytes);
    }
}

/// Without an alpha channel the fourth byte of a pixel may hold anything.
constexpr QRgb opaque = 0xff000000u;

void layOver(QRgb *row, const QRgb *source, int pixels, unsigned coverage, Mode mode, QRgb alphaBits)
{
    for (int x = 0; x < pixels; ++x) {
        const uint32_t part = scaled(source[x] | alphaBits, coverage);
        row[x] = part + scaled(row[x], 255 - (mode == Mode::Instead ? coverage : unsigned(qAlpha(part))));
    }
}

/// Calls `paint(pixels, y, x, length, coverage)` for what the mask and the clip have in common.
template <class Paint>
void forRuns(QImage &image, const QRect &clip, const CoverageMask &mask, QPoint origin, Paint paint)
{
    const QRect bounds = clip.intersected(image.rect().translated(origin));
    const int end = std::min(mask.endRow(), bounds.bottom() + 1);
    for (int y = std::max(mask.firstRow(), bounds.top()); y < end; ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y - origin.y()));
        const auto [first, last] = mask.row(y);
        for (const CoverageMask::Run *run = first; run != last; ++run) {
            const int from = std::max(run->x, bounds.left());
            const int to = std::min(run->x + int(run->length), bounds.right() + 1);
            if (from < to)
                paint(row + (from - origin.x()), y, from, to - from, unsigned(run->coverage));
        }
    }
}

} // namespace

void fill(QImage &image, const QRect &clip, const CoverageMask &mask, const QColor &color, QPoint origin)
{
    const QRgb source = qPremultiply(color.rgba());
    forRuns(image, clip, mask, origin, [source](QRgb *pixels, int, int, int length, unsigned coverage) {
        layOver(pixels, length, coverage == 255 ? source : scaled(source, coverage));
    });
}

void fill(QImage &image, const QRect &clip, const CoverageMask &mask, const QImage &picture, QPoint position, Mode mode,
    QPoint origin)
{
    const QRect lies(position, picture.size());
    forRuns(
        image, clip.intersected(lies), mask, origin, [&](QRgb *pixels, int y, int x, int length, unsigned coverage) {
            const auto *from
                = reinterpret_cast<const QRgb *>(picture.constScanLine(y - position.y())) + (x - position.x());
            if (coverage == 255 && (mode == Mode::Instead || !picture.hasAlphaChannel()))
                std::copy_n(from, length, pixels);
            else
                layOver(pixels, from, length, coverage, mode, picture.hasAlphaChannel() ? 0 : opaque);
        });
}

void draw(QImage &image, const QRect &clip, const QImage &picture, QPoint position, QPoint origin)
{
    const QRect shown = QRect(position, picture.size()).intersected(clip).intersected(image.rect().translated(origin));
    for (int y = shown.top(); y <= shown.bottom(); ++y) {
        auto *row = reinterpret_cast<QRgb *>(image.scanLine(y - origin.y())) + (shown.left() - origin.x());
        const auto *from
            = reinterpret_cast<const QRgb *>(picture.constScanLine(y - position.y())) + (shown.left() - position.x());
        if (picture.hasAlphaChannel())
            layOver(row, from, shown.width(), 255, Mode::Over, 0);
        else
            std::copy_n(from, shown.width(), row);
    }
}

} // namespace tessaly::PixelBlend
