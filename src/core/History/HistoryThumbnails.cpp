// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryThumbnails.h"

#include "core/Document/FileThumbnail.h"

#include <QCache>
#include <QFileInfo>
#include <QMutex>
#include <QSet>
#include <QThreadPool>
#include <QTimer>

#include <array>
#include <deque>

namespace tessaly {

namespace {

using namespace std::chrono_literals;

constexpr int maxKilobytes = 64 * 1024;
/// How long after a reading that found no package the next one follows: a new entry may be listed before it is written.
constexpr std::array retryDelays { 300ms, 1000ms, 3000ms };

struct Key {
    QUuid id;
    QDateTime modified;
    QSize pixelSize;

    bool operator==(const Key &) const = default;
};

size_t qHash(const Key &key, size_t seed = 0)
{
    return qHashMulti(seed, key.id, key.modified.toMSecsSinceEpoch(), key.pixelSize.width(), key.pixelSize.height());
}

} // namespace

/// Keeps the pictures, and what is still to be read, on the main thread; reads on two others.
class HistoryThumbnails::Reader {
public:
    Reader(HistoryThumbnails &owner, HistoryStore files) : m_owner(owner), m_files(std::move(files))
    {
        m_pool.setMaxThreadCount(2);
    }

    ~Reader()
    {
        {
            const QMutexLocker lock(&m_mutex);
            m_waiting.clear();
        }
        m_pool.waitForDone();
    }

    QImage thumbnail(const Key &key)
    {
        if (const QImage *known = m_pictures.object(key))
            return *known;
        if (!m_asked.contains(key) && !m_unreadable.contains(key)) {
            m_asked.insert(key, 0);
            ask(key);
        }
        const QImage *older = m_pictures.object(m_newest.value(key.id));
        return older ? *older : QImage();
    }

    bool isUnreadable(const Key &key) const { return m_unreadable.contains(key); }

    void keepOnly(const QSet<QUuid> &ids)
    {
        const auto isUnwanted = [&ids](const Key &key) { return !ids.contains(key.id); };
        {
            const QMutexLocker lock(&m_mutex);
            for (const Key &key : m_waiting) {
                if (isUnwanted(key))
                    m_asked.remove(key);
            }
            std::erase_if(m_waiting, isUnwanted);
        }
        m_retried.removeIf([&](const Key &key) { return isUnwanted(key) && m_asked.remove(key); });
    }

private:
    void ask(const Key &key)
    {
        {
            const QMutexLocker lock(&m_mutex);
            m_waiting.push_back(key);
        }
        m_pool.start([this] { readNewest(); });
    }

    /// On a thread of the pool. Does nothing when what it was started for is not wanted any more.
    void readNewest()
    {
        Key key;
        {
            const QMutexLocker lock(&m_mutex);
            if (m_waiting.empty())
                return;
            key = m_waiting.back();
            m_waiting.pop_back();
        }
        const QString path = m_files.packagePath(key.id);
        QImage image = packageThumbnail(path, key.pixelSize);
        const bool isMissing = image.isNull() && !QFileInfo::exists(path);
        QMetaObject::invokeMethod(
            &m_owner, [this, key, image = std::move(image), isMissing] { take(key, image, isMissing); },
            Qt::QueuedConnection);
    }

    void take(const Key &key, const QImage &image, bool isMissing)
    {
        const int attempts = m_asked.value(key);
        if (isMissing && attempts < int(retryDelays.size())) {
            m_asked.insert(key, attempts + 1);
            m_retried.insert(key);
            QTimer::singleShot(retryDelays[size_t(attempts)], &m_owner, [this, key] {
                if (m_retried.remove(key))
                    ask(key);
            });
            return;
        }
        m_asked.remove(key);
        if (image.isNull()) {
            m_unreadable.insert(key);
            Q_EMIT m_owner.unreadable(key.id);
            return;
        }
        m_pictures.insert(key, new QImage(image), int(image.sizeInBytes() / 1024) + 1);
        m_newest.insert(key.id, key);
        Q_EMIT m_owner.ready(key.id);
    }

    HistoryThumbnails &m_owner;
    const HistoryStore m_files;
    QCache<Key, QImage> m_pictures { maxKilobytes };
    QHash<QUuid, Key> m_newest; ///< what was read last, shown until that of another time or size has come
    QHash<Key, int> m_asked; ///< waiting, being read or to be read again; how often no package was there
    QSet<Key> m_retried; ///< whose package may yet come
    QSet<Key> m_unreadable;
    QMutex m_mutex;
    std::deque<Key> m_waiting; ///< guarded by m_mutex; the newest last
    QThreadPool m_pool;
};

HistoryThumbnails::HistoryThumbnails(HistoryStore files, QObject *parent) :
    QObject(parent),
    m_reader(std::make_unique<Reader>(*this, std::move(files)))
{
}

HistoryThumbnails::~HistoryThumbnails() = default;

QImage HistoryThumbnails::thumbnail(const QUuid &id, const QDateTime &modified, QSize pixelSize)
{
    return m_reader->thumbnail({ id, modified, pixelSize });
}

bool HistoryThumbnails::isUnreadable(const QUuid &id, const QDateTime &modified, QSize pixelSize) const
{
    return m_reader->isUnreadable({ id, modified, pixelSize });
}

void HistoryThumbnails::setWanted(const QList<QUuid> &ids) { m_reader->keepOnly({ ids.begin(), ids.end() }); }

} // namespace tessaly
