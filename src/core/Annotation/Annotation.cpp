// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Annotation/Annotation.h"

#include <QCoreApplication>

namespace tessaly {

static constexpr std::tuple fields {
    json::Field { "id", &Annotation::id },
    json::Field { "kind", &Annotation::kind },
    json::Field { "p1", &Annotation::p1 },
    json::Field { "p2", &Annotation::p2 },
    json::Field { "colorHex", &Annotation::colorHex },
    json::Field { "lineWidth", &Annotation::lineWidth },
    json::Field { "text", &Annotation::text },
    json::Field { "fontSize", &Annotation::fontSize },
    json::Field { "bold", &Annotation::bold },
    json::Field { "italic", &Annotation::italic },
    json::Field { "fontName", &Annotation::fontName },
    json::Field { "filled", &Annotation::filled },
    json::Field { "doubleHeaded", &Annotation::doubleHeaded },
    json::Field { "arrowHead", &Annotation::arrowHead },
    json::Field { "stamp", &Annotation::stamp },
    json::Field { "obscure", &Annotation::obscure },
    json::Field { "obscureStrength", &Annotation::obscureStrength },
    json::Field { "highlightOpacity", &Annotation::highlightOpacity },
    json::Field { "points", &Annotation::points },
    json::Field { "spotEllipse", &Annotation::spotEllipse },
    json::Field { "spotDim", &Annotation::spotDim },
    json::Field { "imageData", &Annotation::imageData },
    json::Field { "disc", &Annotation::disc },
    json::Field { "stampLabel", &Annotation::stampLabel },
    json::Field { "tailAngle", &Annotation::tailAngle },
    json::Field { "tailLength", &Annotation::tailLength },
    json::Field { "curved", &Annotation::curved },
    json::Field { "curveHandle", &Annotation::curveHandle },
    json::Field { "magnification", &Annotation::magnification },
    json::Field { "magnifierRound", &Annotation::magnifierRound },
};

bool json::Codec<QPointF>::read(const QJsonValue &value, QPointF &target)
{
    const QJsonArray pair = value.toArray();
    if (pair.size() != 2 || !pair[0].isDouble() || !pair[1].isDouble())
        return false;
    target = { pair[0].toDouble(), pair[1].toDouble() };
    return true;
}

bool json::Codec<QUuid>::read(const QJsonValue &value, QUuid &target)
{
    target = QUuid::fromString(value.toString());
    return value.isString() && !target.isNull();
}

QJsonObject Annotation::toJson() const { return json::write(*this, fields); }

Result<Annotation> Annotation::fromJson(const QJsonObject &object)
{
    for (const char *required : { "kind", "p1", "p2" }) {
        if (!object.contains(QLatin1StringView(required)))
            return Failure { QCoreApplication::translate("Annotation", "The mark has no “%1”.").arg(QLatin1StringView(required)) };
    }
    Annotation mark;
    if (const char *key = json::readOver(mark, object, fields))
        return Failure { QCoreApplication::translate("Annotation", "The mark's “%1” is not of its type.").arg(QLatin1StringView(key)) };
    return mark;
}

} // namespace tessaly
