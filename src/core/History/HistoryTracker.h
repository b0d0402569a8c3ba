// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/Snapshot.h"
#include "core/History/HistoryWrite.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <chrono>

namespace tessaly {

class AnnotationStore;

/// Watches one editor's capture and asks for it to be written when it has changed. Main thread only.
class HistoryTracker : public QObject {
    Q_OBJECT

public:
    /// When states are written.
    struct Pace {
        std::chrono::milliseconds first { 250 }; ///< a new capture: not while its editor is being painted
        std::chrono::milliseconds settled { 1000 }; ///< without further changes
        std::chrono::milliseconds longest { 5000 }; ///< since the first change that is not written
        std::chrono::milliseconds retry { 30'000 }; ///< after a failure
    };
    struct Subject {
        QString title;
        std::optional<QUuid> entryID; ///< absent until it is written for the first time
        bool isNew = false; ///< to be written even without a change
        QDateTime created {}; ///< of a new capture
    };

    /// The store outlives the tracker.
    HistoryTracker(AnnotationStore &store, Subject subject, const Pace &pace);

    const AnnotationStore &store() const { return m_store; }
    const Subject &subject() const { return m_subject; }
    const std::optional<QUuid> &entryID() const { return m_subject.entryID; }
    void setEntryID(const QUuid &id) { m_subject.entryID = id; }
    const std::shared_ptr<StoredPicture> &storedPicture() const { return m_stored; }
    const std::shared_ptr<WaitingWrite> &waiting() const { return m_waiting; }

    /// Asks for the present state to be written unless it was before.
    void writeNow();
    void written(const Outcome &outcome);
    bool hasFailed() const { return m_hasFailed; }

    /// Follows the store no longer, and gives up what waits to be written.
    void end();
    bool hasEnded() const { return m_hasEnded; }

Q_SIGNALS:
    /// The present state is to be written; whether its picture is another than that of the state before.
    void due(bool isNewPicture);

private:
    void noteChange();

    AnnotationStore &m_store;
    Subject m_subject;
    Pace m_pace;
    Snapshot m_asked; ///< the last state that was asked to be written, or that lies on the disk
    bool m_mustWrite;
    bool m_hasFailed = false;
    bool m_hasEnded = false;
    QTimer m_timer;
    QElapsedTimer m_sinceChange; ///< valid while a change waits
    std::shared_ptr<StoredPicture> m_stored = std::make_shared<StoredPicture>();
    std::shared_ptr<WaitingWrite> m_waiting = std::make_shared<WaitingWrite>();
};

} // namespace tessaly
