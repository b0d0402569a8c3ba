// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Frame/Watermark.h"

#include <QCoreApplication>

namespace tessaly {

static constexpr std::tuple fields {
    json::Field { "kind", &Watermark::kind },
    json::Field { "text", &Watermark::text },
    json::Field { "imageData", &Watermark::imageData },
    json::Field { "colorHex", &Watermark::colorHex },
    json::Field { "position", &Watermark::position },
    json::Field { "opacity", &Watermark::opacity },
    json::Field { "size", &Watermark::size },
};

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
