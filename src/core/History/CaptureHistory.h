// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/LongWork.h"
#include "core/History/HistoryKeeper.h"
#include "core/History/HistorySearch.h"
#include "core/History/HistoryThumbnails.h"
#include "core/History/HistoryTracker.h"

#include <QObject>

#include <functional>
#include <memory>

namespace tessaly {

class AnnotationStore;
class Clock;
class Settings;

/// Keeps every capture as an editable document. One for the program. The disk is touched on one thread of its own;
/// everything here is called on the main thread, and answers there.
class CaptureHistory : public QObject {
    Q_OBJECT

public:
    struct Surroundings {
        HistoryStore files;
        Settings &settings;
        const Clock &clock;
        HistoryTracker::Pace pace = {};
    };
    explicit CaptureHistory(const Surroundings &surroundings);
    /// Writes what is still unwritten.
    ~CaptureHistory() override;

    /// Starts reading the folder; loaded() comes.
    void load();
    bool isLoaded() const;
    /// Newest first.
    const QList<HistoryEntry> &entries() const;
    QList<HistoryEntry> search(const QString &query);
    HistoryThumbnails &thumbnails();
    QString packagePath(const QUuid &id) const;

    /// "historyEnabled".
    bool isEnabled() const;

    /// Adds a capture that no editor shows. `recorded` is called once it lies on the disk, or could not be put there.
    /// The id of the new entry; none when the history is switched off, and then `recorded` is not called.
    std::optional<QUuid> record(
        const RasterImage &image, const QString &title, std::function<void(Outcome)> recorded = [](const Outcome &) {});

    enum class Begin {
        Now, ///< the capture is added at once
        WithFirstChange, ///< only when something changes
    };
    /// Follows an editor: adds its capture, or continues the entry that it was opened from, and rewrites that while the
    /// store changes. Nothing happens when the history is switched off, and what is followed then ends with that. Ends
    /// with endTracking() or the store, and when the entry is removed.
    void track(AnnotationStore &store, const QString &title, const std::optional<QUuid> &entryID, Begin begin);
    /// Takes over the last state of the store; the editor may then go.
    void endTracking(AnnotationStore &store);
    /// Whether closing the editor loses nothing, since the history has, or is about to write, all that it shows.
    bool keeps(const AnnotationStore &store) const;
    /// The same once what is unwritten has been written; `work` waits for that.
    bool keepNow(const AnnotationStore &store, LongWork &work);
    /// The entry that an open editor shows.
    std::optional<QUuid> entryOf(const AnnotationStore &store) const;

    void remove(const QUuid &id);
    /// Removes all entries. An editor that shows one goes on with a capture that the history does not have.
    void empty();
    void pruneExpired(const QDateTime &now);

    /// Starts to read the text of captures: asks for one picture at a time, and takes the answer, absent when reading
    /// failed. Entries whose reading was interrupted, and those without text, are read first.
    using ReadText = std::function<void(const RasterImage &image, std::function<void(std::optional<QString>)> answer)>;
    void setTextRecognizer(ReadText readText);

    /// Waits until everything is on the disk.
    void flush();

Q_SIGNALS:
    void loaded();
    void entriesChanged();
    /// A sentence that the user should see in passing.
    void notice(const QString &sentence);

private:
    struct Implementation;
    std::unique_ptr<Implementation> m_implementation;
};

} // namespace tessaly
