// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/RectangleShadow.h"

#include "core/Imaging/PixelMemory.h"
#include "core/Imaging/WideVectors.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <vector>

namespace tessaly::RectangleShadow {

using Sample = std::uint16_t;

namespace {

/// 1 in a profile: 16 bits with 8 after the point.
constexpr float fullSample = 65280;

/// Where the rectangle lies along one axis, and how soft it is.
struct Span {
    double from, to, radius;
};

/// The share of a pixel at `distance` inside an edge whose softness is narrower than a few pixels: the mean of the
/// normal distribution over the pixel.
double coveredShare(double distance, double radius)
{
    const auto sumTo = [radius](double end) {
        const double place = end / radius;
        if (!(std::abs(place) < 6))
            return std::max(end, 0.0);
        return end * std::erfc(-place / std::numbers::sqrt2) / 2
            + radius * std::exp(-place * place / 2) / std::sqrt(2 * std::numbers::pi);
    };
    return sumTo(distance + 0.5) - sumTo(distance - 0.5);
}

void sharpProfile(const Span &span, std::vector<Sample> &profile)
{
    for (std::size_t pixel = 0; pixel < profile.size(); ++pixel) {
        const double middle = double(pixel) + 0.5;
        const double share
            = coveredShare(middle - span.from, span.radius) - coveredShare(middle - span.to, span.radius);
        profile[pixel] = static_cast<Sample>(std::lround(std::clamp(share, 0.0, 1.0) * double(fullSample)));
    }
}

/// The error function within 3e-7, by the rational approximation 7.1.28 of Abramowitz and Stegun, which needs no
/// exponential and so vectorises.
inline float errorFunction(float value)
{
    const float size = std::fabs(value);
    float power = 1
        + size
            * (0.0705230784f
                + size
                    * (0.0422820123f
                        + size
                            * (0.0092705272f
                                + size * (0.0001520143f + size * (0.0002765672f + size * 0.0000430638f)))));
    for (int doubling = 0; doubling < 4; ++doubling)
        power *= power;
    return std::copysign(1 - 1 / power, value);
}

/// Where the softness is many pixels wide, a pixel's own width only adds its variance.
TESSALY_WIDE_VECTORS
void softProfile(float from, float to, float scale, int count, Sample *profile)
{
    for (int pixel = 0; pixel < count; ++pixel) {
        const float middle = float(pixel) + 0.5f;
        const float share = errorFunction((middle - from) * scale) - errorFunction((middle - to) * scale);
        profile[pixel] = static_cast<Sample>(static_cast<int>(share * (fullSample / 2) + 0.5f));
    }
}

std::vector<Sample> profileOf(int length, const Span &span)
{
    constexpr double narrow = 3;
    std::vector<Sample> profile(length);
    if (span.radius < narrow) {
        sharpProfile(span, profile);
        return profile;
    }
    const double scale = 1 / std::sqrt(2 * (span.radius * span.radius + 1.0 / 12));
    softProfile(float(span.from), float(span.to), float(scale), length, profile.data());
    return profile;
}

/// `factor` is 65 536 times what a row covers.
TESSALY_WIDE_VECTORS
void scaleRow(const Sample *across, Sample factor, int count, uchar *__restrict row)
{
    for (int x = 0; x < count; ++x) {
        const auto scaled = static_cast<Sample>(std::uint32_t(across[x]) * factor >> 16);
        row[x] = static_cast<uchar>(static_cast<Sample>(scaled + 128) >> 8);
    }
}

} // namespace

QImage coverage(QSize pixelSize, const QRectF &pixelRect, double pixelRadius)
{
    constexpr double farAway = 1e7, largestRadius = 1e6;
    QImage out = PixelMemory::allocate(pixelSize, QImage::Format_Grayscale8);
    if (out.isNull())
        return {};
    const double radius = pixelRadius > 0 ? std::min(pixelRadius, largestRadius) : 0;
    const QRectF rect = pixelRect.normalized();
    const auto near = [&](double place) { return std::isnan(place) ? 0 : std::clamp(place, -farAway, farAway); };
    const auto across = profileOf(pixelSize.width(), { near(rect.left()), near(rect.right()), radius });
    auto down = profileOf(pixelSize.height(), { near(rect.top()), near(rect.bottom()), radius });

    // From 65 280 for 1 to 65 535: what is fully covered must not lose a level.
    for (Sample &factor : down)
        factor = static_cast<Sample>(factor + factor / 256);

    const int width = pixelSize.width(), height = pixelSize.height();
    for (int y = 0; y < (height + 1) / 2; ++y) {
        const int mirrored = height - 1 - y; // most often as far from its edge
        scaleRow(across.data(), down[y], width, out.scanLine(y));
        if (down[mirrored] == down[y] && mirrored != y)
            std::memcpy(out.scanLine(mirrored), out.constScanLine(y), std::size_t(width));
        else
            scaleRow(across.data(), down[mirrored], width, out.scanLine(mirrored));
    }
    return out;
}

} // namespace tessaly::RectangleShadow
