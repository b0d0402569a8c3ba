// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/EnumNames.h"

namespace tessaly {

/// What a press on the canvas does, in the order of the tool bar.
enum class Tool {
    Select,
    Arrow,
    Text,
    Rectangle,
    Ellipse,
    Line,
    Highlight,
    Pixelate,
    Stamp,
    Pen,
    Spotlight,
    Sticker,
    ImageOverlay,
    Crop,
    Magnifier,
    Frame,
};

template <>
inline constexpr auto enumNames<Tool> = std::to_array<EnumName<Tool>>({
    { Tool::Select, QLatin1StringView("select") },
    { Tool::Arrow, QLatin1StringView("arrow") },
    { Tool::Text, QLatin1StringView("text") },
    { Tool::Rectangle, QLatin1StringView("rectangle") },
    { Tool::Ellipse, QLatin1StringView("ellipse") },
    { Tool::Line, QLatin1StringView("line") },
    { Tool::Highlight, QLatin1StringView("highlight") },
    { Tool::Pixelate, QLatin1StringView("pixelate") },
    { Tool::Stamp, QLatin1StringView("stamp") },
    { Tool::Pen, QLatin1StringView("pen") },
    { Tool::Spotlight, QLatin1StringView("spotlight") },
    { Tool::Sticker, QLatin1StringView("sticker") },
    { Tool::ImageOverlay, QLatin1StringView("imageOverlay") },
    { Tool::Crop, QLatin1StringView("crop") },
    { Tool::Magnifier, QLatin1StringView("magnifier") },
    { Tool::Frame, QLatin1StringView("frame") },
});

} // namespace tessaly
