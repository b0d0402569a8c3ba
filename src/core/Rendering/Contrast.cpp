// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/Contrast.h"

#include <cmath>

namespace tessaly::Contrast {

static const QColor nearBlack(28, 28, 30);

double luminance(const QColor &color)
{
    const auto linear
        = [](double value) { return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4); };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

QColor textOn(const QColor &background)
{
    constexpr double whiteDrowns = 0.62; // a contrast ratio of white under 1.6
    return luminance(background) > whiteDrowns ? nearBlack : QColor(Qt::white);
}

QColor opposite(const QColor &color)
{
    constexpr double light = 0.45;
    return luminance(color) > light ? nearBlack : QColor(Qt::white);
}

} // namespace tessaly::Contrast
