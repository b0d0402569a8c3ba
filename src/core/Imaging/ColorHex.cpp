// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ColorHex.h"

#include <algorithm>

namespace tessaly::ColorHex {

static int hexDigit(QChar character)
{
    const char16_t code = character.unicode();
    if (code >= u'0' && code <= u'9')
        return code - u'0';
    const char16_t lower = code | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

QColor toColor(QStringView text)
{
    QStringView trimmed = text.trimmed();
    if (trimmed.startsWith(u'#'))
        trimmed = trimmed.mid(1);
    QString digits;
    for (const QChar character : trimmed)
        digits.append(QString(trimmed.size() == 3 ? 2 : 1, character));

    quint64 value = 0;
    for (const QChar character : std::as_const(digits)) {
        const int digit = hexDigit(character);
        if (digit < 0)
            break;
        value = value << 4 | static_cast<quint64>(digit);
    }
    if (digits.size() == 8)
        return QColor::fromRgb(value >> 24 & 255, value >> 16 & 255, value >> 8 & 255, value & 255);
    return QColor::fromRgb(value >> 16 & 255, value >> 8 & 255, value & 255);
}

QString toHex(const QColor &color)
{
    const QColor rgb = color.toRgb();
    const auto channel = [](float component) { return std::clamp(qRound(component * 255), 0, 255); };
    return QString::asprintf("#%02X%02X%02X", channel(rgb.redF()), channel(rgb.greenF()), channel(rgb.blueF()));
}

} // namespace tessaly::ColorHex
