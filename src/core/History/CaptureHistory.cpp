// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/CaptureHistory.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Base/Clock.h"
#include "core/History/HistoryLog.h"
#include "core/History/HistoryPruning.h"
#include "core/History/HistoryReading.h"
#include "core/Preferences/Settings.h"

#include <QFileInfo>
#include <QLocale>
#include <QPointer>
#include <QTimer>

#include <map>

namespace tessaly {

struct CaptureHistory::Implementation {
    Implementation(CaptureHistory &history, const Surroundings &surroundings);

    HistoryTracker *trackerOf(const AnnotationStore &store) const; ///< null also when it has ended
    void endEntries(const std::function<bool(const QUuid &)> &condition);
    HistoryWrite writeOf(const QUuid &id, const QString &title, TessalyDocument::Source source) const;
    void write(HistoryTracker &tracker, bool isNewPicture);
    void postWaiting(HistoryTracker &tracker);
    void written(const QUuid &id, const Outcome &outcome);
    QSet<QUuid> openEntries() const;
    void prune(const QDateTime &now);
    void remove(std::function<Outcome(HistoryKeeper &)> removing);
    void prepareSearch();
    void tellOfRole();
    void tellOfLoading(const HistoryStore::Loaded &loaded);
    void report(const Failure &failure, const QString &sentence);

    CaptureHistory &history;
    Surroundings surroundings;
    HistoryThumbnails thumbnails;
    HistorySearch search;
    HistoryDisk disk;
    HistoryReading reading;
    std::map<const AnnotationStore *, std::unique_ptr<HistoryTracker>> trackers;
    QSet<QString> told; ///< sentences since the last write that succeeded
    bool hasToldOfGuest = false;
};

CaptureHistory::Implementation::Implementation(CaptureHistory &history, const Surroundings &surroundings) :
    history(history),
    surroundings(surroundings),
    thumbnails(surroundings.files),
    disk(surroundings.files),
    reading(disk, [&history] { return history.isEnabled(); })
{
    connect(&disk, &HistoryDisk::entriesChanged, &history, &CaptureHistory::entriesChanged);
    connect(&disk, &HistoryDisk::roleChanged, &history, [this] { tellOfRole(); });
    connect(&disk, &HistoryDisk::loaded, &history, [this](const auto &loaded) { tellOfLoading(loaded); });
    connect(&disk, &HistoryDisk::requestsTaken, &history,
        [this] { this->history.pruneExpired(this->surroundings.clock.now()); });
    connect(&reading, &HistoryReading::failed, &history,
        [this](const Failure &failure) { report(failure, CaptureHistory::tr("The history couldn't be updated: %1")); });
}

HistoryTracker *CaptureHistory::Implementation::trackerOf(const AnnotationStore &store) const
{
    const auto found = trackers.find(&store);
    return found == trackers.end() || found->second->hasEnded() ? nullptr : found->second.get();
}

void CaptureHistory::Implementation::endEntries(const std::function<bool(const QUuid &)> &condition)
{
    for (const auto &[store, tracker] : trackers) {
        if (tracker->entryID() && condition(*tracker->entryID()))
            tracker->end();
    }
}

HistoryWrite CaptureHistory::Implementation::writeOf(
    const QUuid &id, const QString &title, TessalyDocument::Source source) const
{
    const QDateTime now = surroundings.clock.now().toUTC();
    return { .id = id,
        .title = title,
        .created = now,
        .moment = now,
        .source = std::move(source),
        .stored = std::make_shared<StoredPicture>(),
        .willBeRead = reading.hasBegun() };
}

/// Has the present state of an editor's capture written.
void CaptureHistory::Implementation::write(HistoryTracker &tracker, bool isNewPicture)
{
    if (!history.isEnabled())
        return tracker.end();
    if (!tracker.entryID())
        tracker.setEntryID(QUuid::createUuid());
    const QUuid id = *tracker.entryID();
    const HistoryTracker::Subject &subject = tracker.subject();
    HistoryWrite write = writeOf(id, subject.title, TessalyDocument::source(tracker.store()));
    write.stored = tracker.storedPicture();
    if (subject.created.isValid())
        write.created = subject.created;
    if (tracker.waiting()->put(std::move(write)))
        postWaiting(tracker);
    if (isNewPicture)
        reading.pictureChanged(id); // which reads it after it has been written
}

void CaptureHistory::Implementation::postWaiting(HistoryTracker &tracker)
{
    const auto outcome = std::make_shared<std::optional<Outcome>>();
    const auto job = [outcome, waiting = tracker.waiting()](HistoryKeeper &keeper) {
        if (const auto newest = waiting->take())
            *outcome = newest->perform(keeper);
    };
    disk.post(job, [this, outcome, id = *tracker.entryID(), tracker = QPointer(&tracker)] {
        if (!*outcome)
            return;
        if (tracker)
            tracker->written(**outcome);
        written(id, **outcome);
    });
    prune(surroundings.clock.now());
}

void CaptureHistory::Implementation::written(const QUuid &id, const Outcome &outcome)
{
    if (outcome)
        return told.clear();
    HistoryLog::report(outcome);
    QString message = outcome.failure().message;
    // The same cause for another capture is not told again.
    message.replace(id.toString(QUuid::WithoutBraces), QStringLiteral("…"));
    report({ message }, CaptureHistory::tr("The capture couldn't be kept in the history: %1"));
}

QSet<QUuid> CaptureHistory::Implementation::openEntries() const
{
    QSet<QUuid> open;
    for (const auto &[store, tracker] : trackers) {
        if (tracker->entryID() && !tracker->hasEnded())
            open += *tracker->entryID();
    }
    return open;
}

/// Gives up the expired entries, unless another process keeps the history or it is switched off: some at a time, so
/// that a capture that comes meanwhile does not wait for all of them.
void CaptureHistory::Implementation::prune(const QDateTime &now)
{
    if (!history.isEnabled())
        return;
    static constexpr qsizetype atATime = 50;
    const int days = HistoryPruning::retentionDays(surroundings.settings);
    const auto more = std::make_shared<bool>(false);
    const auto job = [open = openEntries(), now, days, more](HistoryKeeper &keeper) {
        if (keeper.role() == HistoryKeeper::Role::Guest)
            return;
        const QList<QUuid> expired = HistoryPruning::expired(keeper.entries(), days, now, open);
        if (expired.isEmpty())
            return;
        const Outcome removed = keeper.remove(expired.last(std::min(expired.size(), atATime)));
        if (!removed)
            qWarning("Tessaly: expired captures couldn't be removed: %s", qPrintable(removed.failure().message));
        *more = removed && expired.size() > atATime;
    };
    disk.post(job, [this, more, now] {
        if (*more) // by a timer, for which flush() does not wait
            QTimer::singleShot(0, &history, [this, now] { prune(now); });
    });
}

void CaptureHistory::Implementation::remove(std::function<Outcome(HistoryKeeper &)> removing)
{
    const auto outcome = std::make_shared<Outcome>(Done {});
    const auto job = [outcome, removing = std::move(removing)](HistoryKeeper &keeper) { *outcome = removing(keeper); };
    disk.post(job, [this, outcome] {
        if (!*outcome)
            report(outcome->failure(), CaptureHistory::tr("The history couldn't be updated: %1"));
    });
}

/// Folds the texts of all entries before the first query needs them.
void CaptureHistory::Implementation::prepareSearch()
{
    using Prepared = QHash<QUuid, std::pair<SearchKey, QByteArray>>;
    const auto prepared = std::make_shared<Prepared>();
    const auto prepare = [prepared, locale = QLocale()](HistoryKeeper &keeper) {
        for (const HistoryEntry &entry : keeper.entries()) {
            const SearchKey key { entry.title, entry.created, entry.recognizedText };
            prepared->insert(entry.id, { key, HistorySearch::haystack(key, locale) });
        }
    };
    disk.post(prepare, [this, prepared] { search.adopt(std::move(*prepared)); });
}

void CaptureHistory::Implementation::tellOfRole()
{
    // A folder that cannot be written is kept by nobody; that is told when something is to be written.
    const QFileInfo folder(surroundings.files.directory);
    const bool isKeptElsewhere = disk.role() == HistoryKeeper::Role::Guest && folder.isDir() && folder.isWritable();
    if (!isKeptElsewhere || std::exchange(hasToldOfGuest, true))
        return;
    Q_EMIT history.notice(
        CaptureHistory::tr("Another Tessaly keeps the history; captures of this one are handed to it."));
}

void CaptureHistory::Implementation::tellOfLoading(const HistoryStore::Loaded &loaded)
{
    if (loaded.repaired)
        qWarning("Tessaly: the history's index was rebuilt from its captures");
    if (loaded.problem)
        report(*loaded.problem, CaptureHistory::tr("The history couldn't be read: %1"));
    prepareSearch();
    Q_EMIT history.loaded();
}

void CaptureHistory::Implementation::report(const Failure &failure, const QString &sentence)
{
    const QString told = sentence.arg(failure.message);
    if (this->told.contains(told))
        return;
    this->told += told;
    Q_EMIT history.notice(told);
}

CaptureHistory::CaptureHistory(const Surroundings &surroundings) :
    m_implementation(std::make_unique<Implementation>(*this, surroundings))
{
}

CaptureHistory::~CaptureHistory()
{
    blockSignals(true); // who listens may have gone
    m_implementation->reading.end();
    flush();
}

void CaptureHistory::load() { m_implementation->disk.load(); }
bool CaptureHistory::isLoaded() const { return m_implementation->disk.isLoaded(); }
const QList<HistoryEntry> &CaptureHistory::entries() const { return m_implementation->disk.entries(); }
HistoryThumbnails &CaptureHistory::thumbnails() { return m_implementation->thumbnails; }

QList<HistoryEntry> CaptureHistory::search(const QString &query)
{
    return m_implementation->search.matches(query, entries());
}

QString CaptureHistory::packagePath(const QUuid &id) const
{
    return m_implementation->surroundings.files.packagePath(id);
}

bool CaptureHistory::isEnabled() const
{
    return m_implementation->surroundings.settings.value(SettingKeys::historyEnabled);
}

std::optional<QUuid> CaptureHistory::record(
    const RasterImage &image, const QString &title, std::function<void(Outcome)> recorded)
{
    if (!isEnabled())
        return std::nullopt;
    Implementation &self = *m_implementation;
    const QUuid id = QUuid::createUuid();
    const HistoryWrite write = self.writeOf(id, title, HistoryWrite::sourceOf(image));
    const auto result = std::make_shared<Outcome>(Done {});
    const auto job = [result, write](HistoryKeeper &keeper) { *result = write.perform(keeper); };
    self.disk.post(job, [&self, result, id, recorded = std::move(recorded)] {
        self.written(id, *result);
        recorded(*result);
    });
    self.prune(self.surroundings.clock.now());
    return id;
}

void CaptureHistory::track(
    AnnotationStore &store, const QString &title, const std::optional<QUuid> &entryID, Begin begin)
{
    if (!isEnabled())
        return;
    Implementation &self = *m_implementation;
    const HistoryTracker::Subject subject { title, entryID, begin == Begin::Now,
        begin == Begin::Now ? self.surroundings.clock.now().toUTC() : QDateTime() };
    auto &tracker = self.trackers[&store];
    tracker = std::make_unique<HistoryTracker>(store, subject, self.surroundings.pace);
    connect(tracker.get(), &HistoryTracker::due, this,
        [&self, due = tracker.get()](bool isNewPicture) { self.write(*due, isNewPicture); });
    connect(&store, &QObject::destroyed, this, [&self, key = &store] { self.trackers.erase(key); });
}

void CaptureHistory::endTracking(AnnotationStore &store)
{
    if (HistoryTracker *tracker = m_implementation->trackerOf(store))
        tracker->writeNow();
    store.disconnect(this);
    m_implementation->trackers.erase(&store);
}

bool CaptureHistory::keeps(const AnnotationStore &store) const
{
    const HistoryTracker *tracker = m_implementation->trackerOf(store);
    return tracker && isEnabled() && !store.documentURL() && !tracker->hasFailed();
}

bool CaptureHistory::keepNow(const AnnotationStore &store, LongWork &work)
{
    HistoryDisk &disk = m_implementation->disk;
    HistoryTracker *tracker = m_implementation->trackerOf(store);
    if (!tracker || !isEnabled() || store.documentURL())
        return false;
    tracker->writeNow();
    if (!disk.isIdle())
        work.complete(tr("Keeping the capture…"), [&disk](const Cancellation &) { disk.waitForJobs(); });
    disk.finish();
    return keeps(store);
}

std::optional<QUuid> CaptureHistory::entryOf(const AnnotationStore &store) const
{
    const HistoryTracker *tracker = m_implementation->trackerOf(store);
    return tracker ? tracker->entryID() : std::nullopt;
}

void CaptureHistory::remove(const QUuid &id)
{
    m_implementation->endEntries([&](const QUuid &each) { return each == id; });
    m_implementation->remove([id](HistoryKeeper &keeper) { return keeper.remove({ id }); });
}

void CaptureHistory::empty()
{
    m_implementation->endEntries([](const QUuid &) { return true; });
    m_implementation->remove([](HistoryKeeper &keeper) { return keeper.removeAll(); });
}

void CaptureHistory::pruneExpired(const QDateTime &now) { m_implementation->prune(now); }

void CaptureHistory::setTextRecognizer(ReadText readText) { m_implementation->reading.begin(std::move(readText)); }

void CaptureHistory::flush()
{
    for (const auto &[store, tracker] : m_implementation->trackers)
        tracker->writeNow();
    m_implementation->disk.finish();
}

} // namespace tessaly
