// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Capture/WatchedFolder.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>

namespace tessaly {

namespace {

struct Identity {
    quint64 device = 0, number = 0;
};

/// What tells a folder from another that takes its path.
Identity identityOf(const QString &path)
{
    struct stat info = {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0 || !S_ISDIR(info.st_mode))
        return {};
    return { info.st_dev, info.st_ino };
}

QString nearestAbove(const QString &path)
{
    QString above = QFileInfo(path).path();
    while (!QFileInfo(above).isDir() && above != QFileInfo(above).path())
        above = QFileInfo(above).path();
    return above;
}

} // namespace

WatchedFolder::WatchedFolder()
{
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &WatchedFolder::handleChange);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, [this](const QString &path) {
        const QString name = QFileInfo(path).fileName();
        watchFile(name); // another file may have taken its place
        Q_EMIT fileChanged(name);
    });
}

bool WatchedFolder::open(const QString &path)
{
    close();
    m_path = QDir::cleanPath(path);
    watch();
    if (!m_watcher.directories().contains(m_path))
        close();
    return !m_path.isEmpty();
}

void WatchedFolder::close()
{
    m_path.clear();
    if (const QStringList watched = m_watcher.files() + m_watcher.directories(); !watched.isEmpty())
        m_watcher.removePaths(watched);
    m_device = m_number = 0;
}

QStringList WatchedFolder::names(const QString &path)
{
    return QDir(path).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::NoSort);
}

void WatchedFolder::watchFile(const QString &name)
{
    forgetFile(name);
    m_watcher.addPath(filePath(name));
}

void WatchedFolder::watch()
{
    if (const QStringList watched = m_watcher.files() + m_watcher.directories(); !watched.isEmpty())
        m_watcher.removePaths(watched);
    // The one above tells when this one is moved away, which is nothing that happens in it.
    m_watcher.addPath(nearestAbove(m_path));
    const Identity identity = identityOf(m_path);
    const bool watched = identity.number != 0 && m_watcher.addPath(m_path);
    m_device = watched ? identity.device : 0;
    m_number = watched ? identity.number : 0;
}

void WatchedFolder::handleChange(const QString &changedPath)
{
    if (m_path.isEmpty())
        return;
    const Identity identity = identityOf(m_path);
    const bool isSame = identity.device == m_device && identity.number == m_number;
    const bool isWhole = isSame && m_number != 0 && m_watcher.directories().contains(m_path);
    if (!isWhole)
        watch();
    if (changedPath == m_path || !isSame)
        Q_EMIT changed();
}

} // namespace tessaly
