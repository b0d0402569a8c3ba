// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/JsonFields.h"
#include "core/Imaging/CropAspect.h"

#include <QStringList>

#include <array>

namespace tessaly {

enum class FrameBackgroundKind { Gradient, Solid, Transparent };

template <>
inline constexpr auto enumNames<FrameBackgroundKind> = std::to_array<EnumName<FrameBackgroundKind>>({
    { FrameBackgroundKind::Gradient, QLatin1StringView("gradient") },
    { FrameBackgroundKind::Solid, QLatin1StringView("solid") },
    { FrameBackgroundKind::Transparent, QLatin1StringView("transparent") },
});

/// How a capture is presented on a background.
struct FrameStyle {
    FrameBackgroundKind background = FrameBackgroundKind::Gradient;
    QStringList gradientColors { QStringLiteral("#FF4D6D"), QStringLiteral("#D6174F") }; ///< stops, first to last
    QString solidHex = QStringLiteral("#FFFFFF");
    double padding = 0.08; ///< margin as a fraction of the geometric mean of the picture's sides
    double cornerRadius = 10; ///< points
    double shadow = 0.5; ///< 0 (none) to 1
    CropAspect aspect = CropAspect::Free; ///< of the whole framed canvas

    QJsonObject toJson() const;

    /// The first field that JSON cannot hold, a number that is not finite; null when all can be written.
    const char *unwritableKey() const;

    /// A missing key keeps its default; a value of another type fails, and the sentence names the key.
    static Result<FrameStyle> fromJson(const QJsonObject &object);

    /// The style with its numbers in the range that can be drawn: padding 0 to 2, corner radius 0 to 100 000 points,
    /// shadow 0 to 1. What is no number at all becomes the default.
    FrameStyle drawable() const;

    bool operator==(const FrameStyle &) const = default;

    /// A gradient that the user can pick by name.
    struct Gradient {
        const char *identifier;
        const char *name;
        std::array<const char *, 2> colors;
    };
    static constexpr std::array<Gradient, 6> gradients { {
        { "pink", QT_TRANSLATE_NOOP("FrameStyle", "Pink"), { "#FF4D6D", "#D6174F" } },
        { "sunset", QT_TRANSLATE_NOOP("FrameStyle", "Sunset"), { "#FF3366", "#FF9F0A" } },
        { "violet", QT_TRANSLATE_NOOP("FrameStyle", "Violet"), { "#FF3366", "#5E5CE6" } },
        { "ocean", QT_TRANSLATE_NOOP("FrameStyle", "Ocean"), { "#2E7DF6", "#30C8D6" } },
        { "graphite", QT_TRANSLATE_NOOP("FrameStyle", "Graphite"), { "#48484A", "#1C1C1E" } },
        { "mist", QT_TRANSLATE_NOOP("FrameStyle", "Mist"), { "#F5F5F7", "#D2D2D7" } },
    } };
    static constexpr std::array<const char *, 3> solidSwatches { "#FFFFFF", "#E5E5EA", "#1C1C1E" };

    /// The display name of a gradient; an identifier that is not in the table is named as the last one.
    static QString gradientName(QStringView identifier);
};

template <>
struct json::Codec<FrameStyle> {
    static bool read(const QJsonValue &value, FrameStyle &target);
    static QJsonValue write(const FrameStyle &value) { return value.toJson(); }
};

} // namespace tessaly
