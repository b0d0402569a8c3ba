// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Document/RecentDocuments.h"

#include "core/Preferences/Settings.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

namespace tessaly {

namespace {

QStringList stored(const Settings &settings)
{
    const auto json = settings.value(SettingKeys::recentDocuments).value_or(QByteArray());
    QStringList paths;
    for (const QJsonValue &path : QJsonDocument::fromJson(json).array()) {
        if (path.isString())
            paths += path.toString();
    }
    return paths.mid(0, RecentDocuments::maxCount);
}

void store(const QStringList &paths, Settings &settings)
{
    const QByteArray json = QJsonDocument(QJsonArray::fromStringList(paths)).toJson(QJsonDocument::Compact);
    // A list that cannot be written holds for this run.
    static_cast<void>(settings.set(SettingKeys::recentDocuments, json));
}

/// The last part of a path, also where a document's folder is named with a closing slash.
QString fileNameOf(const QString &path) { return QFileInfo(QDir::cleanPath(path)).fileName(); }

} // namespace

RecentDocuments::RecentDocuments(Settings &settings, QObject *parent) : QObject(parent), m_settings(settings) { }

QStringList RecentDocuments::paths() const
{
    QStringList paths = stored(m_settings);
    paths.removeIf([](const QString &path) { return !QFileInfo::exists(path); });
    return paths;
}

void RecentDocuments::add(const QString &path)
{
    const QString absolute = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    QStringList paths = stored(m_settings);
    paths.removeAll(absolute);
    paths.prepend(absolute);
    store(paths.mid(0, maxCount), m_settings);
    Q_EMIT changed();
}

void RecentDocuments::clear()
{
    store({}, m_settings);
    Q_EMIT changed();
}

QString RecentDocuments::title(const QString &path) const
{
    const QString name = fileNameOf(path);
    const QStringList remembered = paths();
    const auto sharing
        = std::ranges::count_if(remembered, [&](const QString &each) { return fileNameOf(each) == name; });
    if (sharing < 2)
        return name;
    return name + QStringLiteral(" — ") + fileNameOf(QFileInfo(QDir::cleanPath(path)).path());
}

} // namespace tessaly
