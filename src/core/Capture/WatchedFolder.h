// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileSystemWatcher>
#include <QObject>

namespace tessaly {

/// Tells when the names in one folder may have changed, also after the folder was moved away, deleted and made again,
/// and when some of its files have. Costs nothing while nothing happens. Main thread only.
class WatchedFolder : public QObject {
    Q_OBJECT

public:
    WatchedFolder();

    /// Whether the folder is there and can be watched.
    bool open(const QString &path);
    void close();
    /// Empty when nothing is watched.
    const QString &path() const { return m_path; }

    /// All, the hidden ones and the folders, too; none while the folder is gone.
    static QStringList names(const QString &path);

    /// Tells of changes to the file of that name, too, until it is forgotten, or the folder is gone.
    void watchFile(const QString &name);
    void forgetFile(const QString &name) { m_watcher.removePath(filePath(name)); }

Q_SIGNALS:
    void changed();
    void fileChanged(const QString &name);

private:
    /// Watches the folder that has the path now, and the nearest one above it that is there.
    void watch();
    void handleChange(const QString &changedPath);
    QString filePath(const QString &name) const { return m_path + u'/' + name; }

    QFileSystemWatcher m_watcher;
    QString m_path;
    quint64 m_device = 0, m_number = 0; ///< of the folder that is watched; 0 while there is none
};

} // namespace tessaly
