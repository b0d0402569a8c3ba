// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Preferences/SettingsFile.h"

#include "core/Base/SafeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLockFile>

#include <chrono>
#include <sys/stat.h>

namespace tessaly {

namespace {

/// No settings come near this; a longer file is not ours.
constexpr qint64 maxFileBytes = qint64(64) * 1024 * 1024;

/// How long to wait for another program to finish its writing, which takes some milliseconds.
constexpr std::chrono::milliseconds patience { 400 };

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

SettingsFile::Stamp SettingsFile::stamp() const
{
    struct stat found = {};
    if (::stat(QFile::encodeName(m_path).constData(), &found) != 0)
        return {};
    return { found.st_dev, found.st_ino, found.st_size, found.st_mtim.tv_sec, found.st_mtim.tv_nsec };
}

bool SettingsFile::isOther() const { return !m_path.isEmpty() && stamp() != m_seen; }

Result<QJsonObject> SettingsFile::read()
{
    if (m_path.isEmpty())
        return QJsonObject();
    m_seen = stamp(); // before the content, so that a later one is noticed
    return readObject(m_path);
}

Outcome SettingsFile::update(const Change &change)
{
    if (m_path.isEmpty()) {
        change(std::nullopt);
        return Done {};
    }
    QDir().mkpath(QFileInfo(m_path).path()); // where this fails, so does writing, and says why
    QLockFile lock(m_path + QStringLiteral(".lock"));
    if (!lock.tryLock(static_cast<int>(patience.count())) && lock.error() == QLockFile::LockFailedError)
        return failure(m_path,
            QT_TRANSLATE_NOOP("Settings", "The settings %1 cannot be written: another program is writing them."));
    const auto there = readObject(m_path);
    const QJsonObject wanted = change(there ? std::optional(*there) : std::nullopt);
    if (!there && QFileInfo::exists(m_path) && !putAside(m_path)) {
        return failure(m_path,
            QT_TRANSLATE_NOOP("Settings", "The settings %1 cannot be written: the unreadable file stays in the way."));
    }
    Outcome outcome = SafeFile::write(m_path, QJsonDocument(wanted).toJson());
    m_seen = stamp(); // nobody else writes yet
    return outcome;
}

void SettingsFile::follow()
{
    if (m_path.isEmpty() || m_watcher)
        return;
    QDir().mkpath(QFileInfo(m_path).path()); // what is not there cannot be watched
    m_watcher.emplace();
    const auto look = [this] {
        watch();
        if (isOther())
            Q_EMIT otherChange();
    };
    connect(&*m_watcher, &QFileSystemWatcher::directoryChanged, this, look);
    connect(&*m_watcher, &QFileSystemWatcher::fileChanged, this, look);
    look();
}

void SettingsFile::watch()
{
    // The folder tells of a new file in the place of the old one, the file of one that is written in place. What is
    // reached by a link may be replaced where it lies. A file that was replaced is watched no more.
    QStringList paths { QFileInfo(m_path).path() };
    if (const QFileInfo file(m_path); file.exists())
        paths += { m_path, QFileInfo(file.canonicalFilePath()).path() };
    const QStringList watched = m_watcher->files() + m_watcher->directories();
    for (const QString &path : std::as_const(paths)) {
        if (!watched.contains(path))
            m_watcher->addPath(path);
    }
}

} // namespace tessaly
