// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/JsonCodec.h"

#include <QJsonObject>

#include <algorithm>
#include <array>
#include <functional>
#include <string_view>
#include <tuple>

/// Records and their JSON by one table: each row is a key and a pointer to a member, read and written by the same row.
namespace tessaly::json {

template <class Record, class Member>
struct Field {
    const char *key;
    Member Record::*member;
};
template <class Record, class Member>
Field(const char *, Member Record::*) -> Field<Record, Member>;

/// Whether a table names its keys in ascending order, as reading and writing need it.
template <class... Fields>
constexpr bool areSorted(const std::tuple<Fields...> &fields)
{
    return std::apply(
        [](const auto &...field) {
            const std::array<std::string_view, sizeof...(field)> keys { field.key... };
            return std::ranges::adjacent_find(keys, std::ranges::greater_equal {}) == keys.end();
        },
        fields);
}

/// Reads every key that is present over what `record` holds; a missing key changes nothing.
/// The result is the first key whose value is of another type, or null. The table is sorted, as objects are: one walk
/// over both finds every key.
template <class Record, class... Fields>
const char *readOver(Record &record, const QJsonObject &object, const std::tuple<Fields...> &fields)
{
    const char *wrongKey = nullptr;
    auto entry = object.constBegin();
    QString key = entry == object.constEnd() ? QString() : entry.key();
    const auto advance = [&] { key = ++entry == object.constEnd() ? QString() : entry.key(); };
    const auto readOne = [&](const auto &field) {
        const QLatin1StringView wanted(field.key);
        while (entry != object.constEnd() && key < wanted)
            advance();
        if (wrongKey || entry == object.constEnd() || key != wanted)
            return;
        using Member = std::remove_reference_t<decltype(record.*field.member)>;
        if (!Codec<Member>::read(entry.value(), record.*field.member))
            wrongKey = field.key;
        advance();
    };
    std::apply([&](const auto &...field) { (readOne(field), ...); }, fields);
    return wrongKey;
}

/// The first key whose value JSON cannot hold, or null.
template <class Record, class... Fields>
const char *firstUnwritable(const Record &record, const std::tuple<Fields...> &fields)
{
    const char *wrongKey = nullptr;
    const auto check = [&](const auto &field) {
        if (!wrongKey && !isWritable(record.*field.member))
            wrongKey = field.key;
    };
    std::apply([&](const auto &...field) { (check(field), ...); }, fields);
    return wrongKey;
}

template <class Record, class... Fields>
QJsonObject write(const Record &record, const std::tuple<Fields...> &fields)
{
    QJsonObject object;
    const auto writeOne = [&](const auto &field) {
        using Member = std::remove_cvref_t<decltype(record.*field.member)>;
        const QJsonValue value = Codec<Member>::write(record.*field.member);
        if (!value.isUndefined())
            object.insert(QLatin1StringView(field.key), value);
    };
    std::apply([&](const auto &...field) { (writeOne(field), ...); }, fields);
    return object;
}

} // namespace tessaly::json
