// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/EnumNames.h"

namespace tessaly {

enum class AnnotationKind {
    Arrow,
    Text,
    Rectangle,
    Ellipse,
    Line,
    Highlight,
    Pixelate, ///< an obscured area; how it hides is an ObscureStyle
    Stamp,
    Pen,
    Spotlight,
    Sticker,
    ImageOverlay,
    Magnifier,
};

template <>
inline constexpr auto enumNames<AnnotationKind> = std::to_array<EnumName<AnnotationKind>>({
    { AnnotationKind::Arrow, QLatin1StringView("arrow") },
    { AnnotationKind::Text, QLatin1StringView("text") },
    { AnnotationKind::Rectangle, QLatin1StringView("rectangle") },
    { AnnotationKind::Ellipse, QLatin1StringView("ellipse") },
    { AnnotationKind::Line, QLatin1StringView("line") },
    { AnnotationKind::Highlight, QLatin1StringView("highlight") },
    { AnnotationKind::Pixelate, QLatin1StringView("pixelate") },
    { AnnotationKind::Stamp, QLatin1StringView("stamp") },
    { AnnotationKind::Pen, QLatin1StringView("pen") },
    { AnnotationKind::Spotlight, QLatin1StringView("spotlight") },
    { AnnotationKind::Sticker, QLatin1StringView("sticker") },
    { AnnotationKind::ImageOverlay, QLatin1StringView("imageOverlay") },
    { AnnotationKind::Magnifier, QLatin1StringView("magnifier") },
});

enum class ArrowHeadStyle {
    Tapered, ///< a sharp, tapering stroke
    Filled, ///< a solid triangle
    Open, ///< two strokes that form a V
    Concave, ///< a triangle with a concave back edge
};

template <>
inline constexpr auto enumNames<ArrowHeadStyle> = std::to_array<EnumName<ArrowHeadStyle>>({
    { ArrowHeadStyle::Tapered, QLatin1StringView("tapered") },
    { ArrowHeadStyle::Filled, QLatin1StringView("filled") },
    { ArrowHeadStyle::Open, QLatin1StringView("open") },
    { ArrowHeadStyle::Concave, QLatin1StringView("concave") },
});

enum class StampKind { Check, Cross, Exclamation, Question, Star, Dot, Number };

template <>
inline constexpr auto enumNames<StampKind> = std::to_array<EnumName<StampKind>>({
    { StampKind::Check, QLatin1StringView("check") },
    { StampKind::Cross, QLatin1StringView("cross") },
    { StampKind::Exclamation, QLatin1StringView("exclamation") },
    { StampKind::Question, QLatin1StringView("question") },
    { StampKind::Star, QLatin1StringView("star") },
    { StampKind::Dot, QLatin1StringView("dot") },
    { StampKind::Number, QLatin1StringView("number") },
});

enum class ObscureStyle { Pixelate, Blur, Solid, Stripes };

template <>
inline constexpr auto enumNames<ObscureStyle> = std::to_array<EnumName<ObscureStyle>>({
    { ObscureStyle::Pixelate, QLatin1StringView("pixelate") },
    { ObscureStyle::Blur, QLatin1StringView("blur") },
    { ObscureStyle::Solid, QLatin1StringView("solid") },
    { ObscureStyle::Stripes, QLatin1StringView("stripes") },
});

} // namespace tessaly
