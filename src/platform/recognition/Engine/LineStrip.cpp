// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/recognition/Engine/LineStrip.h"

#include <array>

namespace tessaly {

namespace {

// What the models see: they scale every line to this height themselves, more roughly than it is done here.
constexpr int stripHeight = 36;
// Room above and below the ink and at the ends, in parts of the letters' height.
constexpr double marginAbove = 0.2, marginBelow = 0.2, marginBeside = 0.3;

/// Catmull-Rom weights of the four samples around a place between the middle two.
std::array<double, 4> cubicWeights(double t)
{
    return { ((-0.5 * t + 1) * t - 0.5) * t, ((1.5 * t - 2.5) * t) * t + 1, ((-1.5 * t + 2) * t + 0.5) * t,
        ((0.5 * t - 0.5) * t) * t };
}

/// One direction of a resampling: which source samples, with which weights, make up each sample of the result.
struct Taps {
    int first = 0;
    std::vector<double> weights;
};

std::vector<Taps> tapsFor(double start, double scale, int count)
{
    // When the strip is smaller than the line, the kernel is stretched so that no sample is passed over.
    const double stretch = std::max(1.0, 1 / scale);
    std::vector<Taps> taps;
    for (int i = 0; i < count; ++i) {
        const double centre = start + (i + 0.5) / scale - 0.5;
        Taps tap;
        tap.first = int(std::ceil(centre - 2 * stretch));
        double sum = 0;
        for (int at = tap.first; at <= centre + 2 * stretch; ++at) {
            const double distance = std::abs(at - centre) / stretch;
            const double weight = distance >= 2 ? 0
                : distance >= 1                 ? cubicWeights(distance - 1)[0]
                                                : cubicWeights(distance)[1];
            tap.weights.push_back(weight);
            sum += weight;
        }
        for (double &weight : tap.weights)
            weight /= sum;
        taps.push_back(std::move(tap));
    }
    return taps;
}

/// The rows of the rectangle in the columns of the strip; nothing outside of the rectangle counts.
std::vector<double> resampledAcross(const QImage &ink, const QRect &own, const std::vector<Taps> &columns)
{
    std::vector<double> across;
    across.reserve(std::size_t(own.height()) * columns.size());
    for (int y = own.top(); y <= own.bottom(); ++y) {
        const uchar *pixels = ink.constScanLine(y);
        for (const Taps &taps : columns) {
            double sum = 0;
            for (std::size_t i = 0; i < taps.weights.size(); ++i) {
                const int at = taps.first + int(i);
                if (at >= own.left() && at <= own.right())
                    sum += taps.weights[i] * pixels[at];
            }
            across.push_back(sum);
        }
    }
    return across;
}

} // namespace

LineStrip lineStrip(const QImage &ink, const TextLine &line)
{
    const double top = line.box.top() - marginAbove * line.height;
    const double bottom = line.box.bottom() + 1 + marginBelow * line.height;
    const double left = line.box.left() - marginBeside * line.height;
    const double right = line.box.right() + 1 + marginBeside * line.height;
    LineStrip strip;
    strip.scale = stripHeight / (bottom - top);
    strip.origin = { left, top };
    const int width = std::max(1, int(std::ceil((right - left) * strip.scale)));
    const auto columns = tapsFor(left, strip.scale, width), rows = tapsFor(top, strip.scale, stripHeight);
    strip.pixels = QImage(width, stripHeight, QImage::Format_Grayscale8);

    // What lies outside of the line's own box is not its ink.
    const QRect own = line.box.adjusted(-1, -1, 1, 1) & ink.rect();
    const std::vector<double> across = resampledAcross(ink, own, columns);
    const double gain = 255.0 / std::max(1, line.contrast);
    for (int y = 0; y < stripHeight; ++y) {
        const Taps &taps = rows[std::size_t(y)];
        uchar *out = strip.pixels.scanLine(y);
        for (int x = 0; x < width; ++x) {
            double sum = 0;
            for (std::size_t i = 0; i < taps.weights.size(); ++i) {
                const int at = taps.first + int(i) - own.top();
                if (at >= 0 && at < own.height())
                    sum += taps.weights[i] * across[std::size_t(at) * std::size_t(width) + std::size_t(x)];
            }
            out[x] = uchar(255 - std::clamp(int(std::lround(sum * gain)), 0, 255));
        }
    }
    return strip;
}

} // namespace tessaly
