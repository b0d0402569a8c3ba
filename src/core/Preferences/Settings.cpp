// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/Settings.h"

namespace tessaly {

Settings::Settings(QString path) : m_path(std::move(path)) { }
QString Settings::defaultPath() { return {}; }
bool Settings::value(const SettingKey<bool> &key) const { return key.fallback; }
double Settings::value(const SettingKey<double> &key) const { return key.fallback; }
QString Settings::value(const SettingKey<const char *> &key) const { return QLatin1StringView(key.fallback); }
std::optional<QByteArray> Settings::value(const SettingKey<SettingKeys::Bytes> &) const { return {}; }

} // namespace tessaly
