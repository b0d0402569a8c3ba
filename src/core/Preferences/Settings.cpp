// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/Settings.h"

#include "core/Preferences/SettingTable.h"

#include <QCoreApplication>
#include <QStandardPaths>

#include <cmath>

namespace tessaly {

Settings::Settings(QString path) : m_file(std::move(path))
{
    if (auto values = m_file.read())
        m_values = *std::move(values);
    else
        m_problem = values.failure();
    connect(&m_file, &SettingsFile::otherChange, this, &Settings::reread);
}

void Settings::followOthers() { m_file.follow(); }

QString Settings::defaultPath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + QStringLiteral("/tessaly/settings.json");
}

bool Settings::value(const SettingKey<bool> &key) const
{
    return m_values.value(QLatin1StringView(key.name)).toBool(key.fallback);
}

int Settings::value(const SettingKey<int> &key) const
{
    return m_values.value(QLatin1StringView(key.name)).toInt(key.fallback);
}

double Settings::value(const SettingKey<double> &key) const
{
    return m_values.value(QLatin1StringView(key.name)).toDouble(key.fallback);
}

QString Settings::value(const SettingKey<const char *> &key) const
{
    const QLatin1StringView name(key.name);
    const QJsonValue stored = m_values.value(name);
    if (!stored.isString())
        return QLatin1StringView(key.fallback);
    const SettingRow *row = SettingTable::find(QString(name));
    return row && !row->acceptsText(stored.toString()) ? QString(QLatin1StringView(key.fallback)) : stored.toString();
}

std::optional<QByteArray> Settings::value(const SettingKey<SettingKeys::Bytes> &key) const
{
    const QJsonValue stored = m_values.value(QLatin1StringView(key.name));
    return stored.isString() ? std::optional(stored.toString().toUtf8()) : std::nullopt;
}

Outcome Settings::set(const SettingKey<bool> &key, bool value) { return store(key.name, value, key.fallback); }

Outcome Settings::set(const SettingKey<int> &key, int value) { return store(key.name, value, key.fallback); }

Outcome Settings::set(const SettingKey<double> &key, double value)
{
    if (!std::isfinite(value))
        return Failure { QCoreApplication::translate("Settings", "The setting %1 needs a finite number.")
                             .arg(QLatin1StringView(key.name)) };
    return store(key.name, value, key.fallback);
}

Outcome Settings::set(const SettingKey<const char *> &key, const QString &value)
{
    return store(key.name, value, QLatin1StringView(key.fallback));
}

Outcome Settings::set(const SettingKey<SettingKeys::Bytes> &key, const QByteArray &value)
{
    return store(key.name, QString::fromUtf8(value), QJsonValue::Undefined);
}

Outcome Settings::reset(const char *key) { return store(key, QJsonValue::Undefined, QJsonValue::Undefined); }

Outcome Settings::changeTogether(const std::function<void()> &changes)
{
    const bool isInner = std::exchange(m_collects, true);
    changes();
    m_collects = isInner;
    const QJsonObject before = m_values;
    Outcome outcome = isInner || m_unwritten.isEmpty() ? Outcome(Done {}) : write();
    announce(before);
    return outcome;
}

Outcome Settings::store(const char *key, const QJsonValue &value, const QJsonValue &fallback)
{
    if (!m_collects && m_file.isOther())
        reread();
    const QJsonObject before = m_values;
    const QLatin1StringView name(key);
    if (value == fallback)
        m_values.remove(name);
    else
        m_values.insert(name, value);
    if (m_values.value(name) != before.value(name))
        m_unwritten.insert(name);
    Outcome outcome = m_collects || m_unwritten.isEmpty() ? Outcome(Done {}) : write();
    announce(before);
    return outcome;
}

Outcome Settings::write()
{
    Outcome outcome = m_file.update([this](const std::optional<QJsonObject> &there) {
        if (there)
            takeOver(*there);
        return m_values;
    });
    if (outcome) {
        m_unwritten.clear();
        m_problem.reset();
    }
    return outcome;
}

void Settings::takeOver(const QJsonObject &there)
{
    QJsonObject values = there;
    for (const QString &key : std::as_const(m_unwritten)) {
        if (const QJsonValue value = m_values.value(key); value.isUndefined())
            values.remove(key);
        else
            values.insert(key, value);
    }
    m_values = values;
}

void Settings::reread()
{
    const QJsonObject before = m_values;
    if (const auto there = m_file.read()) // one that is just being written is read at its next change
        takeOver(*there);
    announce(before);
}

void Settings::announce(const QJsonObject &before)
{
    QStringList keys = before.keys();
    for (const QString &key : m_values.keys()) {
        if (!before.contains(key))
            keys += key;
    }
    for (const QString &key : std::as_const(keys)) {
        if (before.value(key) != m_values.value(key))
            Q_EMIT changed(key);
    }
}

} // namespace tessaly
