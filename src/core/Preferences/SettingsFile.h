// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QFileSystemWatcher>
#include <QJsonObject>
#include <QObject>

#include <functional>
#include <optional>

namespace tessaly {

/// The file of the settings, which several programs may write. Main thread only.
class SettingsFile : public QObject {
    Q_OBJECT

public:
    /// With an empty path nothing is read or written.
    explicit SettingsFile(QString path) : m_path(std::move(path)) { }

    const QString &path() const { return m_path; }

    /// What the file holds; one that is not there holds nothing.
    Result<QJsonObject> read();

    /// Whether the file is another than when it was last read or written here.
    bool isOther() const;

    /// Replaces what is there by what `change` makes of it, and keeps other programs from doing so meanwhile. A file
    /// that cannot be read is given as nothing, and put aside as "settings.json.unreadable-1". Waits a moment for a
    /// program that is writing, and fails when that takes long.
    using Change = std::function<QJsonObject(const std::optional<QJsonObject> &there)>;
    Outcome update(const Change &change);

    /// From now on otherChange() is emitted. Needs an application with an event loop.
    void follow();

Q_SIGNALS:
    /// Another program may have written the file.
    void otherChange();

private:
    /// Which file it is, and when it was written last.
    struct Stamp {
        quint64 device = 0, number = 0;
        qint64 size = -1, seconds = 0, nanoseconds = 0;
        bool operator==(const Stamp &) const = default;
    };

    Stamp stamp() const;
    void watch();

    QString m_path;
    Stamp m_seen;
    std::optional<QFileSystemWatcher> m_watcher;
};

} // namespace tessaly
