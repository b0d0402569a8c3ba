// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/Settings.h"

#include "core/Base/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QStandardPaths>

#include <cmath>

namespace tessaly {

namespace {

/// No settings come near this; a longer file is not ours.
constexpr qint64 maxFileBytes = qint64(64) * 1024 * 1024;

Failure failure(const QString &path, const char *sentence, const QString &reason = {})
{
    return { QCoreApplication::translate("Settings", sentence).arg(path, reason) };
}

Result<QJsonObject> readObject(const QString &path)
{
    QFile file(path);
    if (!file.exists())
        return QJsonObject();
    if (!QFileInfo(path).isFile())
        return failure(path, QT_TRANSLATE_NOOP("Settings", "The settings %1 cannot be read: it is not a file."));
    if (!file.open(QIODevice::ReadOnly)) {
        return failure(path, QT_TRANSLATE_NOOP("Settings", "The settings %1 cannot be read: %2."), file.errorString());
    }
    if (file.size() > maxFileBytes)
        return failure(path, QT_TRANSLATE_NOOP("Settings", "The settings %1 cannot be read: the file is too large."));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (error.error != QJsonParseError::NoError) {
        return failure(path, QT_TRANSLATE_NOOP("Settings", "The settings %1 cannot be read: %2."), error.errorString());
    }
    if (!document.isObject())
        return failure(path, QT_TRANSLATE_NOOP("Settings", "The settings %1 cannot be read: they are a list."));
    return document.object();
}

/// Renames the file to the first free name of its kind; nothing that was put aside before is lost.
bool putAside(const QString &path)
{
    for (int number = 1; number <= 100; ++number) {
        const QString aside = path + QStringLiteral(".unreadable-%1").arg(number);
        if (!QFileInfo::exists(aside))
            return QDir().rename(path, aside);
    }
    return false;
}

} // namespace

Settings::Settings(QString path) : m_path(std::move(path))
{
    if (m_path.isEmpty())
        return;
    if (auto values = readObject(m_path))
        m_values = *std::move(values);
    else
        m_problem = values.failure();
}

QString Settings::defaultPath()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return folder + QStringLiteral("/tessaly/settings.json");
}

bool Settings::value(const SettingKey<bool> &key) const
{
    return m_values.value(QLatin1StringView(key.name)).toBool(key.fallback);
}

double Settings::value(const SettingKey<double> &key) const
{
    return m_values.value(QLatin1StringView(key.name)).toDouble(key.fallback);
}

QString Settings::value(const SettingKey<const char *> &key) const
{
    return m_values.value(QLatin1StringView(key.name)).toString(QLatin1StringView(key.fallback));
}

std::optional<QByteArray> Settings::value(const SettingKey<SettingKeys::Bytes> &key) const
{
    const QJsonValue stored = m_values.value(QLatin1StringView(key.name));
    return stored.isString() ? std::optional(stored.toString().toUtf8()) : std::nullopt;
}

Outcome Settings::set(const SettingKey<bool> &key, bool value) { return store(key.name, value, key.fallback); }

Outcome Settings::set(const SettingKey<double> &key, double value)
{
    if (!std::isfinite(value))
        return failure(
            QLatin1StringView(key.name), QT_TRANSLATE_NOOP("Settings", "The setting %1 needs a finite number."));
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

Outcome Settings::store(const char *key, const QJsonValue &value, const QJsonValue &fallback)
{
    const QLatin1StringView name(key);
    const QJsonValue before = m_values.value(name);
    if (value == fallback)
        m_values.remove(name);
    else
        m_values.insert(name, value);
    if (m_path.isEmpty() || (m_written && m_values.value(name) == before))
        return Done {};
    if (!m_collects)
        return write();
    m_written = false;
    return Done {};
}

Outcome Settings::changeTogether(const std::function<void()> &changes)
{
    m_collects = true;
    changes();
    m_collects = false;
    return m_written ? Outcome(Done {}) : write();
}

Outcome Settings::write()
{
    QDir().mkpath(QFileInfo(m_path).path()); // where this fails, so does writing, and says why
    if (m_problem && QFileInfo::exists(m_path) && !putAside(m_path)) {
        return failure(m_path,
            QT_TRANSLATE_NOOP("Settings", "The settings %1 cannot be written: the unreadable file stays in the way."));
    }
    m_problem.reset();
    const auto outcome = SafeFile::write(m_path, QJsonDocument(m_values).toJson());
    m_written = static_cast<bool>(outcome);
    return outcome;
}

} // namespace tessaly
