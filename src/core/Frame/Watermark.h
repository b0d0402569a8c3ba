// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/JsonFields.h"

#include <QPointF>

namespace tessaly {

enum class WatermarkKind { Text, Image };

template <>
inline constexpr auto enumNames<WatermarkKind> = std::to_array<EnumName<WatermarkKind>>({
    { WatermarkKind::Text, QLatin1StringView("text") },
    { WatermarkKind::Image, QLatin1StringView("image") },
});

enum class WatermarkPosition { TopLeft, Top, TopRight, Left, Center, Right, BottomLeft, Bottom, BottomRight, Tile };

template <>
inline constexpr auto enumNames<WatermarkPosition> = std::to_array<EnumName<WatermarkPosition>>({
    { WatermarkPosition::TopLeft, QLatin1StringView("topLeft") },
    { WatermarkPosition::Top, QLatin1StringView("top") },
    { WatermarkPosition::TopRight, QLatin1StringView("topRight") },
    { WatermarkPosition::Left, QLatin1StringView("left") },
    { WatermarkPosition::Center, QLatin1StringView("center") },
    { WatermarkPosition::Right, QLatin1StringView("right") },
    { WatermarkPosition::BottomLeft, QLatin1StringView("bottomLeft") },
    { WatermarkPosition::Bottom, QLatin1StringView("bottom") },
    { WatermarkPosition::BottomRight, QLatin1StringView("bottomRight") },
    { WatermarkPosition::Tile, QLatin1StringView("tile") },
});

/// The point of the canvas, and of the mark itself, that a position puts on each other: 0 is left or top, 1 right or
/// bottom. A tiled mark is anchored at the centre.
QPointF anchor(WatermarkPosition position);

/// A text or a logo drawn over the finished picture.
struct Watermark {
    WatermarkKind kind = WatermarkKind::Text;
    QString text;
    std::optional<QByteArray> imageData; ///< the logo as the bytes of an image file
    QString colorHex = QStringLiteral("#FFFFFF");
    WatermarkPosition position = WatermarkPosition::BottomRight;
    double opacity = 0.6; ///< 0 to 1
    double size = 0.2; ///< relative to the canvas

    /// Whether there is anything to draw: a text with more than white space, or a logo.
    bool isVisible() const;

    QJsonObject toJson() const;

    /// The first field that JSON cannot hold, a number that is not finite; null when all can be written.
    const char *unwritableKey() const;

    /// A missing key keeps its default; a value of another type fails, and the sentence names the key.
    static Result<Watermark> fromJson(const QJsonObject &object);

    /// The watermark with its numbers in the range that can be drawn: opacity 0 to 1, size 0 to 2. What is no number at
    /// all becomes the default.
    Watermark drawable() const;

    bool operator==(const Watermark &) const = default;

    static constexpr std::array<const char *, 3> textColors { "#FFFFFF", "#1C1C1E", "#FF3366" };
};

template <>
struct json::Codec<Watermark> {
    static bool read(const QJsonValue &value, Watermark &target);
    static QJsonValue write(const Watermark &value) { return value.toJson(); }
};

} // namespace tessaly
