// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryDisk.h"
#include "core/Imaging/RasterImage.h"

#include <QSet>

namespace tessaly {

/// Has the text of captures read, one picture at a time, the newest first. Only in the process that keeps the folder.
/// A marker on the disk tells which captures are not finished, so that they are read again after an end of the program.
class HistoryReading : public QObject {
    Q_OBJECT

public:
    /// Takes a picture and answers with its text, absent when reading failed. Main thread.
    using ReadText = std::function<void(const RasterImage &image, std::function<void(std::optional<QString>)> answer)>;

    /// `isAllowed` is asked before each picture. The disk outlives this.
    HistoryReading(HistoryDisk &disk, std::function<bool()> isAllowed);

    void begin(ReadText readText);
    /// An answer that is still to come is not waited for.
    void end();
    bool hasBegun() const { return m_readText != nullptr; }

    /// The picture of an entry is another than before.
    void pictureChanged(const QUuid &id);

Q_SIGNALS:
    void failed(const Failure &failure);

private:
    void collectInterrupted();
    std::optional<QUuid> nextEntry() const;
    void next();
    void read(const QUuid &id, const RasterImage &image);
    void finish(const QUuid &id, const std::optional<QString> &text);
    void goOn();

    HistoryDisk &m_disk;
    std::function<bool()> m_isAllowed;
    ReadText m_readText;
    std::optional<QUuid> m_current;
    QSet<QUuid> m_wanted; ///< to be read although they have a text
    QSet<QUuid> m_tried; ///< in this run
};

} // namespace tessaly
