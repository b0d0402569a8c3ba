// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/JsonFields.h"
#include "core/History/HistoryEntry.h"

namespace tessaly {

namespace json {

template <>
struct Codec<QUuid> {
    static bool read(const QJsonValue &value, QUuid &target)
    {
        target = QUuid::fromString(value.toString());
        return !target.isNull();
    }
    static QJsonValue write(const QUuid &value) { return value.toString(QUuid::WithoutBraces); }
};

/// ISO 8601 in UTC with milliseconds; other ISO dates are read too.
template <>
struct Codec<QDateTime> {
    static bool read(const QJsonValue &value, QDateTime &target);
    static QJsonValue write(const QDateTime &value) { return value.toUTC().toString(Qt::ISODateWithMs); }
};

} // namespace json

namespace history {

/// What an entry consists of in JSON.
inline constexpr std::tuple fields {
    json::Field { "created", &HistoryEntry::created },
    json::Field { "id", &HistoryEntry::id },
    json::Field { "modified", &HistoryEntry::modified },
    json::Field { "pixelHeight", &HistoryEntry::pixelHeight },
    json::Field { "pixelWidth", &HistoryEntry::pixelWidth },
    json::Field { "recognizedText", &HistoryEntry::recognizedText },
    json::Field { "title", &HistoryEntry::title },
};
static_assert(json::areSorted(fields));

} // namespace history

} // namespace tessaly
