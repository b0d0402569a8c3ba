// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QUuid>

#include <functional>
#include <mutex>

namespace tessaly {

/// The most pixels that the decoded pictures of one capture's marks may have together, and that its computed pictures
/// (obscured areas, loupes) may have together: 512 MiB each.
inline constexpr qint64 maxPicturePixels = qint64(512) * 1024 * 1024 / 4;

/// The decoded pictures of image marks, so that each is decoded once and not at every repaint. Any thread.
class OverlayCache {
public:
    /// Opens a round of use, a repaint: what it does not use is dropped when there is no room.
    void beginRound();

    /// The picture of a mark; null when its bytes are no picture, or when there is no room for it.
    QImage picture(const QUuid &mark, const QByteArray &bytes);

private:
    struct Entry {
        QByteArray bytes;
        QImage picture;
        quint64 round = 0;
    };
    QImage decoded(const QByteArray &bytes);
    void dropUnused();

    std::mutex m_mutex;
    QHash<QUuid, Entry> m_ofMark;
    QHash<QByteArray, QImage> m_decoded; ///< by the bytes: marks that were copied share one picture
    qint64 m_pixels = 0; ///< of all of m_decoded
    quint64 m_round = 0;
};

/// The pictures of obscured areas by what they were computed from, so that an unchanged mark is not computed again.
/// Any thread.
class ObscuredCache {
public:
    /// The picture of `key`, from `compute` when it is not known. Two threads may compute the same picture.
    QImage picture(const QByteArray &key, const std::function<QImage()> &compute);

private:
    std::mutex m_mutex;
    QHash<QByteArray, QImage> m_pictures;
    qint64 m_pixels = 0;
};

} // namespace tessaly
