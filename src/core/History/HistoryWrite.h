// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryKeeper.h"

#include <memory>
#include <mutex>

namespace tessaly {

/// The picture that the entry on the disk has, so that a change of marks does not encode it again. Its PNG is not kept
/// in memory, but read back.
struct StoredPicture {
    qint64 pixels = 0; ///< QImage::cacheKey(); 0 is none
    QSizeF pointSize;
    QByteArray pngHash; ///< empty when this process has not encoded it

    bool is(const RasterImage &image) const
    {
        return pixels == image.pixels.cacheKey() && pointSize == image.pointSize;
    }
};

/// A state of a capture on its way into the history. The disk's thread does it.
struct HistoryWrite {
    QUuid id;
    QString title;
    QDateTime created; ///< of an entry that is not there yet
    QDateTime moment;
    TessalyDocument::Source source;
    std::shared_ptr<StoredPicture> stored; ///< that of the capture; used by one write at a time
    bool willBeRead = false; ///< a new picture is marked as one whose text is to be recognised

    Outcome perform(HistoryKeeper &keeper) const;

    /// A picture without marks.
    static TessalyDocument::Source sourceOf(const RasterImage &image);

private:
    Outcome putInto(HistoryKeeper &keeper) const;
    Result<QByteArray> imagePng(const HistoryStore &files) const;
    HistoryEntry entryAfter(const QList<HistoryEntry> &entries) const;
};

/// The newest state of one capture that waits for its turn; a newer one takes the place of one that still waits.
class WaitingWrite {
public:
    /// True when none was waiting: then a job that takes it is to be posted.
    bool put(HistoryWrite write);
    std::optional<HistoryWrite> take();

private:
    std::mutex m_mutex;
    std::optional<HistoryWrite> m_write;
};

} // namespace tessaly
