// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryTracker.h"

#include "core/Annotation/AnnotationStore.h"

namespace tessaly {

/// By their identity: looking at the pixels would take too long.
static bool isSamePicture(const RasterImage &a, const RasterImage &b)
{
    return a.pixels.cacheKey() == b.pixels.cacheKey() && a.pointSize == b.pointSize;
}

static bool isSame(const Snapshot &a, const Snapshot &b)
{
    return isSamePicture(a.image, b.image) && a.annotations == b.annotations && a.nextStampNumber == b.nextStampNumber
        && a.frame == b.frame && a.watermark == b.watermark;
}

HistoryTracker::HistoryTracker(AnnotationStore &store, Subject subject, const Pace &pace) :
    m_store(store),
    m_subject(std::move(subject)),
    m_pace(pace),
    m_asked(store.currentSnapshot()),
    m_mustWrite(m_subject.isNew)
{
    if (m_subject.entryID && !m_subject.isNew) // its picture has been read from there
        *m_stored = { m_asked.image.pixels.cacheKey(), m_asked.image.pointSize, {} };
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &HistoryTracker::writeNow);
    connect(&store, &AnnotationStore::changed, this, &HistoryTracker::noteChange);
    if (m_mustWrite)
        m_timer.start(m_pace.first);
}

/// Comes with every motion of the pointer; what has changed is looked at when the time has come.
void HistoryTracker::noteChange()
{
    if (m_mustWrite && m_timer.isActive())
        return;
    if (!m_sinceChange.isValid())
        m_sinceChange.start();
    const std::chrono::milliseconds waited(m_sinceChange.elapsed());
    m_timer.start(std::clamp(m_pace.longest - waited, std::chrono::milliseconds(0), m_pace.settled));
}

void HistoryTracker::writeNow()
{
    m_timer.stop();
    m_sinceChange.invalidate();
    if (m_hasEnded)
        return;
    const Snapshot &present = m_store.currentSnapshot();
    if (!m_mustWrite && isSame(present, m_asked))
        return;
    const bool isNewPicture = !isSamePicture(present.image, m_asked.image);
    m_asked = present;
    m_mustWrite = false;
    Q_EMIT due(isNewPicture);
}

void HistoryTracker::written(const Outcome &outcome)
{
    m_hasFailed = !outcome;
    if (!m_hasFailed || m_hasEnded)
        return;
    m_mustWrite = true;
    if (!m_timer.isActive())
        m_timer.start(m_pace.retry);
}

void HistoryTracker::end()
{
    m_hasEnded = true;
    m_timer.stop();
    m_store.disconnect(this);
    m_waiting->take();
}

} // namespace tessaly
