// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/JsonFields.h"

#include <QJsonDocument>

namespace tessaly::json {

QString excerpt(const QJsonValue &value)
{
    static constexpr qsizetype longest = 40;
    if (value.isArray())
        return value.toArray().isEmpty() ? QStringLiteral("[]") : QStringLiteral("[…]");
    if (value.isObject())
        return value.toObject().isEmpty() ? QStringLiteral("{}") : QStringLiteral("{…}");
    const QJsonValue shown = value.isString() ? QJsonValue(value.toString().left(longest + 1)) : value;
    QString text
        = QString::fromUtf8(QJsonDocument(QJsonArray { shown }).toJson(QJsonDocument::Compact)).mid(1).chopped(1);
    if (text.size() > longest)
        text = text.left(longest - 1) + u'…';
    return text;
}

} // namespace tessaly::json
