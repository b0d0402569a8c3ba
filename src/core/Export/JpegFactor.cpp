// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Export/JpegFactor.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessaly {

namespace {

struct Point {
    double percent;
    double factor;
};

constexpr std::array<Point, 16> points { {
    { 0, 0.10 },
    { 30, 0.21 },
    { 35, 0.25 },
    { 40, 0.28 },
    { 45, 0.31 },
    { 50, 0.33 },
    { 55, 0.35 },
    { 60, 0.38 },
    { 65, 0.40 },
    { 70, 0.44 },
    { 75, 0.48 },
    { 80, 0.52 },
    { 85, 0.58 },
    { 90, 0.69 },
    { 95, 0.85 },
    { 100, 1.0 },
} };

} // namespace

double jpegFactor(double quality)
{
    const double percent = std::clamp(std::isnan(quality) ? 0.0 : quality * 100, 0.0, 100.0);
    const auto upper = std::ranges::lower_bound(points, percent, {}, &Point::percent);
    if (upper == points.begin())
        return upper->factor;
    const auto lower = upper - 1;
    const double share = (percent - lower->percent) / (upper->percent - lower->percent);
    return lower->factor + share * (upper->factor - lower->factor);
}

} // namespace tessaly
