// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/PictureScaling.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

namespace {

/// Adds a row of bytes at a weight. Weights of at most 256 in all keep the sums within 16 bits.
TESSALY_WIDE_VECTORS
void addWeighted(uint16_t *sums, const uint8_t *bytes, int count, uint16_t weight)
{
    for (int index = 0; index < count; ++index)
        sums[index] = static_cast<uint16_t>(sums[index] + bytes[index] * weight);
}

struct Column {
    const uint16_t *sums; ///< of its first source pixel
    const uint16_t *weights;
    int count;
};

QRgb mixed(const Column &column, uint32_t alphaBits)
{
    uint32_t blue = 1u << 15, green = 1u << 15, red = 1u << 15, alpha = 1u << 15;
    const uint16_t *pixel = column.sums;
    for (int tap = 0; tap < column.count; ++tap, pixel += 4) {
        const uint32_t weight = column.weights[tap];
        blue += pixel[0] * weight;
        green += pixel[1] * weight;
        red += pixel[2] * weight;
        alpha += pixel[3] * weight;
    }
    return blue >> 16 | green >> 16 << 8 | red >> 16 << 16 | alpha >> 16 << 24 | alphaBits;
}

} // namespace

PictureScaling::PictureScaling(const QImage &picture, QSize whole) : m_picture(picture), m_whole(whole) { }

PictureScaling::Taps PictureScaling::tapsAt(int index, int from, int to)
{
    constexpr double crispFrom = 2; // times the picture's own size
    constexpr double full = 256;
    const double perPixel = double(from) / to;
    if (to > crispFrom * from)
        return { std::clamp(int((index + 0.5) * perPixel), 0, from - 1), { uint16_t(full) } };
    double left = index * perPixel, right = (index + 1) * perPixel;
    if (perPixel < 1) { // blends the two neighbours: what a pixel of the source's own size covers
        left = (index + 0.5) * perPixel - 0.5;
        right = left + 1;
    }
    left = std::clamp(left, 0.0, from - 1e-6);
    right = std::clamp(right, left + 1e-6, double(from));
    Taps taps { int(left), {} };
    // The shares of the rounded positions: they come to exactly 256.
    double done = 0;
    int given = 0;
    for (int pixel = taps.first; pixel < std::min(int(std::ceil(right)), from); ++pixel) {
        done += std::min(right, pixel + 1.0) - std::max(left, double(pixel));
        const int share = int(std::lround(done / (right - left) * full)) - given;
        taps.weights.push_back(uint16_t(share));
        given += share;
    }
    return taps;
}

void PictureScaling::paintRow(int y, const std::vector<Taps> &columns, QRgb *row) const
{
    const uint32_t alphaBits = m_picture.hasAlphaChannel() ? 0 : 0xff000000u;
    const Taps lines = tapsAt(y, m_picture.height(), m_whole.height());
    const int first = columns.front().first;
    if (lines.weights.size() == 1 && columns.front().weights.size() == 1 && columns.back().weights.size() == 1
        && m_whole.width() > m_picture.width()) {
        const auto *source = reinterpret_cast<const QRgb *>(m_picture.constScanLine(lines.first));
        for (const Taps &taps : columns)
            *row++ = source[taps.first] | alphaBits;
        return;
    }
    const int count = columns.back().first + int(columns.back().weights.size()) - first;
    thread_local std::vector<uint16_t> sums;
    sums.assign(size_t(count) * 4, 0);
    for (size_t line = 0; line < lines.weights.size(); ++line) {
        const uchar *source = m_picture.constScanLine(lines.first + int(line)) + qsizetype(first) * 4;
        addWeighted(sums.data(), source, count * 4, lines.weights[line]);
    }
    for (const Taps &taps : columns)
        *row++ = mixed(
            { sums.data() + size_t(taps.first - first) * 4, taps.weights.data(), int(taps.weights.size()) }, alphaBits);
}

void PictureScaling::paint(QRect part, QImage &target, QPoint position, int threads) const
{
    const QRect shown = part.intersected(QRect(QPoint(), m_whole));
    position += shown.topLeft() - part.topLeft();
    if (shown.isEmpty() || m_picture.isNull())
        return;
    std::vector<Taps> columns;
    for (int x = shown.left(); x <= shown.right(); ++x)
        columns.push_back(tapsAt(x, m_picture.width(), m_whole.width()));
    constexpr int rowsInBand = 32;
    const int bands = (shown.height() + rowsInBand - 1) / rowsInBand;
    const qsizetype stride = target.bytesPerLine();
    uchar *corner = target.bits() + position.y() * stride + qsizetype(position.x()) * 4;
    Parallel::inBands(shown.height(), bands, threads, [&](int start, int end) {
        for (int y = start; y < end; ++y)
            paintRow(shown.top() + y, columns, reinterpret_cast<QRgb *>(corner + y * stride));
    });
}

} // namespace tessaly
