// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1StringView>
#include <QStringView>

#include <array>
#include <optional>

namespace tessaly {

/// One case of an enumeration with the text that files and settings hold for it.
template <class Enum>
struct EnumName {
    Enum value;
    QLatin1StringView raw;
};

/// The table of an enumeration in declaration order. Specialise it beside the enumeration:
/// `template <> inline constexpr auto enumNames<StampKind> = std::to_array<EnumName<StampKind>>({ … });`
template <class Enum>
inline constexpr std::array<EnumName<Enum>, 0> enumNames {};

template <class Enum>
QLatin1StringView rawValue(Enum value)
{
    for (const auto &row : enumNames<Enum>) {
        if (row.value == value)
            return row.raw;
    }
    return {};
}

/// The case of exactly this text, case-sensitive; empty for an unknown text.
template <class Enum>
std::optional<Enum> enumFromRaw(QStringView raw)
{
    for (const auto &row : enumNames<Enum>) {
        if (raw == row.raw)
            return row.value;
    }
    return std::nullopt;
}

} // namespace tessaly
