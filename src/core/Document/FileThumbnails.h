// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFutureWatcher>
#include <QHash>
#include <QImage>
#include <QObject>

namespace tessaly {

/// Small pictures of files, read off the main thread and kept until they are forgotten. Main thread only.
class FileThumbnails : public QObject {
    Q_OBJECT

public:
    explicit FileThumbnails(QSize pixelSize, QObject *parent = nullptr);
    /// Waits for nothing: what is being read is thrown away when it has come.
    ~FileThumbnails() override;

    /// As it was last read; null before, and for what has none.
    QImage thumbnail(const QString &path) const { return m_pictures.value(path); }

    /// Has it read, again where it was before: the file may have changed. Then ready() comes, unless it is forgotten.
    void read(const QString &path);

    /// What waits is not read any more, and all pictures are given back.
    void forget();

Q_SIGNALS:
    /// The picture is there, or it is known that there is none.
    void ready(const QString &path);

private:
    using Watcher = QFutureWatcher<QImage>;
    void take(const QString &path, Watcher *watcher);

    QSize m_pixelSize;
    QHash<QString, QImage> m_pictures;
    QHash<QString, Watcher *> m_reading;
};

} // namespace tessaly
