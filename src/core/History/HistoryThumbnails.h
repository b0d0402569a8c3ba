// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryStore.h"

#include <QImage>
#include <QObject>

#include <memory>

namespace tessaly {

/// Small pictures of the history's captures, read off the main thread and kept in memory up to a limit.
/// Main thread only.
class HistoryThumbnails : public QObject {
    Q_OBJECT

public:
    explicit HistoryThumbnails(HistoryStore files, QObject *parent = nullptr);
    ~HistoryThumbnails() override;

    /// The capture's picture as it is known now, at most `pixelSize` on either side, never enlarged; null until it has
    /// been read: then ready() comes. What was asked for last is read first. A picture that cannot be read stays null.
    QImage thumbnail(const QUuid &id, const QDateTime &modified, QSize pixelSize);

    /// Whether it is known that there is no such picture.
    bool isUnreadable(const QUuid &id, const QDateTime &modified, QSize pixelSize) const;

    /// Only these are still wanted; others that wait are not read.
    void setWanted(const QList<QUuid> &ids);

Q_SIGNALS:
    void ready(const QUuid &id);
    void unreadable(const QUuid &id);

private:
    class Reader;
    std::unique_ptr<Reader> m_reader;
};

} // namespace tessaly
