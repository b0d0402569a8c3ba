// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Base/JsonCodec.h"

#include <QJsonDocument>

#include <array>
#include <string_view>

namespace tessaly::json {

namespace {

constexpr quint8 noDigit = 0xff;

/// The value of each letter of Base64, by its code.
constexpr auto base64Digits = [] {
    std::array<quint8, 128> digits {};
    digits.fill(noDigit);
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    for (std::size_t value = 0; value < letters.size(); ++value)
        digits[static_cast<std::size_t>(letters[value])] = static_cast<quint8>(value);
    return digits;
}();

quint32 digitOf(char16_t letter) { return letter < base64Digits.size() ? base64Digits[letter] : noDigit; }

} // namespace

std::optional<QByteArray> fromBase64(QStringView text)
{
    const qsizetype padding = text.endsWith(u"==") ? 2 : text.endsWith(u'=') ? 1 : 0;
    if (text.size() % 4 != 0)
        return std::nullopt;
    const qsizetype groups = text.size() / 4;
    QByteArray bytes(groups * 3, Qt::Uninitialized);
    const char16_t *letter = text.utf16();
    char *byte = bytes.data();
    quint32 wrong = 0;
    for (qsizetype group = 0; group < groups; ++group, letter += 4, byte += 3) {
        const bool isPadded = group == groups - 1;
        const quint32 third = isPadded && padding == 2 ? 0 : digitOf(letter[2]);
        const quint32 fourth = isPadded && padding > 0 ? 0 : digitOf(letter[3]);
        const quint32 first = digitOf(letter[0]), second = digitOf(letter[1]);
        wrong |= first | second | third | fourth;
        const quint32 bits = first << 18 | second << 12 | third << 6 | fourth;
        byte[0] = static_cast<char>(bits >> 16);
        byte[1] = static_cast<char>(bits >> 8);
        byte[2] = static_cast<char>(bits);
    }
    if (wrong > 63)
        return std::nullopt;
    bytes.chop(padding);
    return bytes;
}

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
