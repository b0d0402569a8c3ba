// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFileSystemWatcher>
#include <QObject>

namespace tessaly {

/// Tells when the names in one folder may have changed, also after the folder was moved away, deleted and made again.
/// Costs nothing while nothing happens. Main thread only.
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
    QStringList names() const;

Q_SIGNALS:
    void changed();

private:
    /// Watches the folder that has the path now, and the nearest one above it that is there.
    void watch();
    void handleChange(const QString &changedPath);

    QFileSystemWatcher m_watcher;
    QString m_path;
    quint64 m_device = 0, m_number = 0; ///< of the folder that is watched; 0 while there is none
};

} // namespace tessaly
