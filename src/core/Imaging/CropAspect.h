// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/EnumNames.h"

namespace tessaly {

/// The ratio of width to height that a crop or a frame keeps; `Free` keeps none.
enum class CropAspect { Free, Square, R4x3, R3x4, R16x9, R9x16 };

template <>
inline constexpr auto enumNames<CropAspect> = std::to_array<EnumName<CropAspect>>({
    { CropAspect::Free, QLatin1StringView("free") },
    { CropAspect::Square, QLatin1StringView("square") },
    { CropAspect::R4x3, QLatin1StringView("r4x3") },
    { CropAspect::R3x4, QLatin1StringView("r3x4") },
    { CropAspect::R16x9, QLatin1StringView("r16x9") },
    { CropAspect::R9x16, QLatin1StringView("r9x16") },
});

/// Width divided by height; empty for `Free`.
constexpr std::optional<double> ratio(CropAspect aspect)
{
    switch (aspect) {
    case CropAspect::Free:
        return std::nullopt;
    case CropAspect::Square:
        return 1.0;
    case CropAspect::R4x3:
        return 4.0 / 3.0;
    case CropAspect::R3x4:
        return 3.0 / 4.0;
    case CropAspect::R16x9:
        return 16.0 / 9.0;
    case CropAspect::R9x16:
        return 9.0 / 16.0;
    }
    return std::nullopt;
}

} // namespace tessaly
