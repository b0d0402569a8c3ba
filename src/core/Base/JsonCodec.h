// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/EnumNames.h"
#include "core/Base/Result.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QLatin1StringView>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>

/// How values of each type stand in JSON.
namespace tessaly::json {

/// One type's reading and writing. `read` is false when the value is of another type; `write` may give an undefined
/// value, which leaves the key out. A type that can hold what JSON cannot also has `writable`. Other types specialise
/// it beside their declaration.
template <class T>
struct Codec;

/// Whether JSON can hold the value: it has no word for NaN and the infinities.
template <class T>
bool isWritable(const T &value)
{
    if constexpr (requires { Codec<T>::writable(value); })
        return Codec<T>::writable(value);
    else
        return true;
}

/// The bytes of canonical Base64 text, with its padding; empty for any other text.
std::optional<QByteArray> fromBase64(QStringView text);

/// A value as a short piece of JSON text, for a sentence about it.
QString excerpt(const QJsonValue &value);

template <>
struct Codec<bool> {
    static bool read(const QJsonValue &value, bool &target)
    {
        target = value.toBool();
        return value.isBool();
    }
    static QJsonValue write(bool value) { return value; }
};

template <>
struct Codec<double> {
    static bool read(const QJsonValue &value, double &target)
    {
        target = value.toDouble();
        return value.isDouble();
    }
    static bool writable(double value) { return std::isfinite(value); }
    static QJsonValue write(double value) { return value + 0.0; } // a negative zero becomes zero, as it would be read
};

/// Whole numbers of the type's range; 1.0 is one, 1.5 is none.
template <>
struct Codec<int> {
    static bool read(const QJsonValue &value, int &target)
    {
        const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
        const bool whole = std::trunc(number) == number && number >= std::numeric_limits<int>::min()
            && number <= std::numeric_limits<int>::max();
        target = whole ? static_cast<int>(number) : target;
        return whole;
    }
    static QJsonValue write(int value) { return value; }
};

template <>
struct Codec<QString> {
    static bool read(const QJsonValue &value, QString &target)
    {
        target = value.toString();
        return value.isString();
    }
    static QJsonValue write(const QString &value) { return value; }
};

/// Bytes stand as Base64 text.
template <>
struct Codec<QByteArray> {
    static bool read(const QJsonValue &value, QByteArray &target)
    {
        auto bytes = value.isString() ? fromBase64(value.toString()) : std::nullopt;
        target = std::move(bytes).value_or(QByteArray());
        return bytes.has_value();
    }
    static QJsonValue write(const QByteArray &value) { return QString::fromLatin1(value.toBase64()); }
};

/// An absent value leaves its key out; `null` reads as absent.
template <class T>
struct Codec<std::optional<T>> {
    static bool read(const QJsonValue &value, std::optional<T> &target)
    {
        target.reset();
        return value.isNull() || Codec<T>::read(value, target.emplace());
    }
    static bool writable(const std::optional<T> &value) { return !value || isWritable(*value); }
    static QJsonValue write(const std::optional<T> &value)
    {
        return value ? Codec<T>::write(*value) : QJsonValue(QJsonValue::Undefined);
    }
};

template <class T>
struct Codec<QList<T>> {
    static bool read(const QJsonValue &value, QList<T> &target)
    {
        const QJsonArray array = value.toArray();
        target.clear();
        target.reserve(array.size());
        for (const QJsonValue &element : array) {
            if (!Codec<T>::read(element, target.emplace_back()))
                return false;
        }
        return value.isArray();
    }
    static bool writable(const QList<T> &value) { return std::ranges::all_of(value, isWritable<T>); }
    static QJsonValue write(const QList<T> &value)
    {
        QJsonArray array;
        for (const T &element : value)
            array.append(Codec<T>::write(element));
        return array;
    }
};

/// Enumerations stand as their raw text; an unknown text is of another type.
template <class Enum>
requires std::is_enum_v<Enum>
struct Codec<Enum> {
    static bool read(const QJsonValue &value, Enum &target)
    {
        const auto known = enumFromRaw<Enum>(value.toString());
        target = known.value_or(target);
        return value.isString() && known.has_value();
    }
    static QJsonValue write(Enum value) { return rawValue(value); }
};

} // namespace tessaly::json
