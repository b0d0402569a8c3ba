// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Frame/Watermark.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace tessaly {

static constexpr std::tuple fields {
    json::Field { "colorHex", &Watermark::colorHex },
    json::Field { "imageData", &Watermark::imageData },
    json::Field { "kind", &Watermark::kind },
    json::Field { "opacity", &Watermark::opacity },
    json::Field { "position", &Watermark::position },
    json::Field { "size", &Watermark::size },
    json::Field { "text", &Watermark::text },
};
static_assert(json::areSorted(fields));

QPointF anchor(WatermarkPosition position)
{
    if (position == WatermarkPosition::Tile)
        return anchor(WatermarkPosition::Center);
    // The nine places are declared row by row.
    const int index = static_cast<int>(position);
    return { index % 3 * 0.5, index / 3 * 0.5 };
}

bool Watermark::isVisible() const
{
    return kind == WatermarkKind::Text ? !QStringView(text).trimmed().isEmpty() : imageData.has_value();
}

Watermark Watermark::drawable() const
{
    const Watermark fresh;
    Watermark watermark = *this;
    watermark.opacity = std::isnan(opacity) ? fresh.opacity : std::clamp(opacity, 0.0, 1.0);
    watermark.size = std::isnan(size) ? fresh.size : std::clamp(size, 0.0, 2.0);
    return watermark;
}

QJsonObject Watermark::toJson() const { return json::write(*this, fields); }
const char *Watermark::unwritableKey() const { return json::firstUnwritable(*this, fields); }

Result<Watermark> Watermark::fromJson(const QJsonObject &object)
{
    Watermark watermark;
    if (const char *key = json::readOver(watermark, object, fields)) {
        const QString sentence = QCoreApplication::translate("Watermark", "The watermark's “%1” cannot be %2.");
        return Failure { sentence.arg(QLatin1StringView(key), json::excerpt(object[QLatin1StringView(key)])) };
    }
    return watermark;
}

bool json::Codec<Watermark>::read(const QJsonValue &value, Watermark &target)
{
    const auto watermark = Watermark::fromJson(value.toObject());
    if (!value.isObject() || !watermark)
        return false;
    target = *watermark;
    return true;
}

} // namespace tessaly
