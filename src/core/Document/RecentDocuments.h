// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QStringList>

namespace tessaly {

class Settings;

/// The files and documents that were opened or saved last, newest first. Main thread only.
class RecentDocuments : public QObject {
    Q_OBJECT

public:
    static constexpr int maxCount = 15;

    /// Keeps the reference; the list is stored under "recentDocuments".
    explicit RecentDocuments(Settings &settings, QObject *parent = nullptr);

    /// Absolute paths; those that no longer exist are left out.
    QStringList paths() const;
    void add(const QString &path);
    void clear();

    /// What menus call a path: its file name, with " — " and its folder's name where two remembered ones share it.
    QString title(const QString &path) const;

Q_SIGNALS:
    void changed();

private:
    Settings &m_settings;
};

} // namespace tessaly
