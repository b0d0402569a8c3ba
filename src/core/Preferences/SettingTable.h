// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"
#include "core/Preferences/SettingKeys.h"

#include <QJsonValue>

#include <span>
#include <variant>

namespace tessaly {

class Settings;

enum class SettingType { Boolean, Integer, Real, Text, Color };

/// A setting that the user may set, with the values that it takes.
struct SettingRow {
    using Key = std::variant<const SettingKey<bool> *, const SettingKey<int> *, const SettingKey<double> *,
        const SettingKey<const char *> *>;

    Key key;
    SettingType type;
    double least = 0, most = 0; ///< of a number
    std::span<const char *const> choices = {}; ///< of a text; none: any text

    const char *name() const;
    QJsonValue fallback() const;

    /// Whether a text is one of the choices, or a colour where one is wanted; any text for the other rows.
    bool acceptsText(QStringView text) const;
};

/// Every setting that the user may set, the hot keys included; what the program only remembers is not there. The
/// command line, the settings window and the tests walk these rows.
namespace SettingTable {

std::span<const SettingRow> rows();

/// Null for an unknown name.
const SettingRow *find(QStringView name);

/// The name that was probably meant by one that is unknown; empty when none is near.
QString nearest(QStringView name);

/// What holds now: the stored value, or the default where that is missing or of another type.
QJsonValue value(const Settings &settings, const SettingRow &row);

/// The value that a text of the command line stands for; a failure says what is allowed.
Result<QJsonValue> parse(const SettingRow &row, const QString &text);

/// Stores what parse() gave.
Outcome store(Settings &settings, const SettingRow &row, const QJsonValue &value);

/// All at once; other keys stay.
Outcome resetAll(Settings &settings);

} // namespace SettingTable

} // namespace tessaly
