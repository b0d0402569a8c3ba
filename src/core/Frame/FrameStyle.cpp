// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Frame/FrameStyle.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace tessaly {

static constexpr std::tuple fields {
    json::Field { "aspect", &FrameStyle::aspect },
    json::Field { "background", &FrameStyle::background },
    json::Field { "cornerRadius", &FrameStyle::cornerRadius },
    json::Field { "gradientColors", &FrameStyle::gradientColors },
    json::Field { "padding", &FrameStyle::padding },
    json::Field { "shadow", &FrameStyle::shadow },
    json::Field { "solidHex", &FrameStyle::solidHex },
};
static_assert(json::areSorted(fields));

QJsonObject FrameStyle::toJson() const { return json::write(*this, fields); }
const char *FrameStyle::unwritableKey() const { return json::firstUnwritable(*this, fields); }

Result<FrameStyle> FrameStyle::fromJson(const QJsonObject &object)
{
    FrameStyle style;
    if (const char *key = json::readOver(style, object, fields)) {
        const QString sentence = QCoreApplication::translate("FrameStyle", "The frame's “%1” cannot be %2.");
        return Failure { sentence.arg(QLatin1StringView(key), json::excerpt(object[QLatin1StringView(key)])) };
    }
    return style;
}

FrameStyle FrameStyle::drawable() const
{
    const auto inRange = [](double value, double least, double most, double fallback) {
        return std::isnan(value) ? fallback : std::clamp(value, least, most);
    };
    const FrameStyle fresh;
    FrameStyle style = *this;
    style.padding = inRange(padding, 0, 2, fresh.padding);
    style.cornerRadius = inRange(cornerRadius, 0, 1e5, fresh.cornerRadius);
    style.shadow = inRange(shadow, 0, 1, fresh.shadow);
    return style;
}

QString FrameStyle::gradientName(QStringView identifier)
{
    for (const Gradient &gradient : gradients) {
        if (identifier == QLatin1StringView(gradient.identifier))
            return QCoreApplication::translate("FrameStyle", gradient.name);
    }
    return QCoreApplication::translate("FrameStyle", gradients.back().name);
}

bool json::Codec<FrameStyle>::read(const QJsonValue &value, FrameStyle &target)
{
    const auto style = FrameStyle::fromJson(value.toObject());
    if (!value.isObject() || !style)
        return false;
    target = *style;
    return true;
}

} // namespace tessaly
