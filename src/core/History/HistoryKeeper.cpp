// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryKeeper.h"

#include "core/History/HistoryFolder.h"
#include "core/History/HistoryLog.h"
#include "core/History/HistoryRepair.h"

#include <QCoreApplication>
#include <QDir>

#include <cerrno>

namespace tessaly {

namespace {

using Kind = HistoryMailbox::Kind;
using Message = HistoryMailbox::Message;
using HistoryLog::report;

/// The index of a thousand captures takes some 30 ms to write: less than that often.
constexpr std::chrono::seconds indexInterval { 1 };

bool concernTheSame(const Message &one, const Message &other)
{
    const auto has
        = [](const Message &message, const QUuid &id) { return message.ids.contains(id) || message.entry.id == id; };
    return std::ranges::any_of(other.ids, [&](const QUuid &id) { return has(one, id); })
        || (!other.entry.id.isNull() && has(one, other.entry.id));
}

/// What could not be read back.
Outcome checked(const HistoryEntry &entry)
{
    if (!entry.id.isNull() && entry.created.isValid() && entry.modified.isValid())
        return Done {};
    return Failure { QCoreApplication::translate("History", "A capture without identifier or date cannot be kept.") };
}

} // namespace

HistoryKeeper::HistoryKeeper(HistoryStore files) :
    m_files(std::move(files)),
    m_lock(m_files.directory),
    m_mailbox(m_files.directory)
{
}

HistoryKeeper::~HistoryKeeper() { settle(); }

QString HistoryKeeper::mailboxPath() const { return m_mailbox.path(); }

HistoryKeeper::Role HistoryKeeper::role() { return m_files.makeFolder() && isKeeper() ? Role::Keeper : Role::Guest; }

/// Who has just become the keeper must know the folder before changing it. Makes no folder.
bool HistoryKeeper::isKeeper()
{
    if (m_lock.isHeld())
        return true;
    m_isIndexBehind = false; // the folder that it was about is gone
    if (!m_lock.tryTake())
        return false;
    if (const auto loaded = loadAsKeeper(); loaded.problem)
        report(*loaded.problem);
    m_hasTakenRequests = true; // whoever asks next learns that the entries may be others
    return true;
}

HistoryStore::Loaded HistoryKeeper::load()
{
    auto loaded = m_lock.isHeld() || m_lock.tryTake() ? loadAsKeeper() : loadAsGuest();
    m_hasTakenRequests = false;
    return loaded;
}

/// The order matters: a package that was stepping aside is back before a waiting request may remove it, and what was
/// being replaced is deleted only after its replacement is in place.
HistoryStore::Loaded HistoryKeeper::loadAsKeeper()
{
    report(m_files.makeFolder());
    report(m_mailbox.makeFolder());
    HistoryRepair::restorePackages(m_files);
    takeWaiting();
    HistoryRepair::sweep(m_files);
    m_mailbox.sweep();
    auto loaded = m_files.load();
    m_entries = loaded.entries;
    if (loaded.indexIsUnusable)
        report(m_files.putIndexAside());
    m_isIndexBehind = m_isIndexBehind || loaded.repaired || !HistoryFolder::list(m_files.directory).changed.isEmpty();
    settle();
    return loaded;
}

/// The mailbox first: a message that is taken in between is then seen twice rather than not at all.
HistoryStore::Loaded HistoryKeeper::loadAsGuest()
{
    const auto waiting = m_mailbox.waiting();
    auto loaded = m_files.load();
    for (const Message &message : waiting)
        loaded.entries = changedBy(message, std::move(loaded.entries));
    loaded.repaired = false; // that is for the keeper to say, who may be about to write the index
    m_entries = loaded.entries;
    return loaded;
}

Outcome HistoryKeeper::put(const TessalyDocument::Package &package, const HistoryEntry &entry)
{
    if (auto usable = checked(entry); !usable)
        return usable;
    return change(
        { .kind = Kind::Put, .entry = entry }, [&] { return m_files.write(package, entry); },
        [&] { return m_mailbox.postPut(package, entry); });
}

Outcome HistoryKeeper::update(const HistoryEntry &entry)
{
    if (auto usable = checked(entry); !usable)
        return usable;
    return change(
        { .kind = Kind::Update, .entry = entry }, [&] { return m_files.write(entry); },
        [&] { return m_mailbox.postUpdate(entry); });
}

Outcome HistoryKeeper::remove(const QList<QUuid> &ids)
{
    const Message message { .kind = Kind::Remove, .ids = ids };
    return ids.isEmpty() ? Done {}
                         : change(
                             message, [&] { return perform(message); }, [&] { return m_mailbox.postRemove(ids); });
}

Outcome HistoryKeeper::removeAll()
{
    return change(
        { .kind = Kind::RemoveAll }, [this] { return removeAllPackages(); },
        [this] { return m_mailbox.postRemoveAll(); });
}

Outcome HistoryKeeper::change(
    const Message &message, const std::function<Outcome()> &directly, const std::function<Outcome()> &byMail)
{
    if (auto made = m_files.makeFolder(); !made)
        return made;
    const bool isDirect = isKeeper();
    if (isDirect)
        takeWaiting(); // what was posted before comes before
    auto outcome = isDirect ? directly() : byMail();
    if (!outcome && isDirect)
        readAgain();
    if (!outcome)
        return outcome;
    m_entries = changedBy(message, std::move(m_entries));
    if (isDirect)
        indexIsBehind();
    return outcome;
}

Outcome HistoryKeeper::perform(const Message &message)
{
    switch (message.kind) {
    case Kind::Put:
        return m_files.adopt(message.path, message.entry.id);
    case Kind::Update: {
        const bool isThere
            = std::ranges::any_of(m_files.packageIDs(), [&](const QUuid &id) { return id == message.entry.id; });
        return isThere ? m_files.write(message.entry) : Done {};
    }
    case Kind::Remove:
        return m_files.remove(message.ids);
    case Kind::RemoveAll:
        return removeAllPackages();
    case Kind::Malformed:
        break;
    }
    return Failure { QCoreApplication::translate("History", "%1 cannot be understood.").arg(message.path) };
}

/// With all that could still tell what was in the captures.
Outcome HistoryKeeper::removeAllPackages()
{
    const auto listing = HistoryFolder::list(m_files.directory);
    if (listing.error != 0)
        return HistoryFolder::notRead(m_files.directory, listing.error);
    for (const QUuid &id : listing.recognizing)
        report(m_files.clearRecognizing(id));
    for (const QString &name : listing.oldIndexes)
        report(HistoryFolder::removeTree(QDir(m_files.directory).filePath(name)));
    m_mailbox.forgetPutAside();
    return m_files.remove(listing.packages);
}

bool HistoryKeeper::takeRequests()
{
    if (isKeeper()) {
        takeWaiting();
        settle();
    }
    return std::exchange(m_hasTakenRequests, false);
}

/// Idempotent: a message goes only when its change is on the disk. One that cannot be performed now waits, and with it
/// the later ones of the same captures.
void HistoryKeeper::takeWaiting()
{
    QList<Message> blocked;
    const auto waiting = m_mailbox.waiting();
    for (const Message &message : waiting) {
        if (message.kind == Kind::Malformed && m_mailbox.waits(message))
            report(m_mailbox.putAside(message));
        if (message.kind == Kind::Malformed)
            continue;
        const bool mustWait
            = std::ranges::any_of(blocked, [&](const Message &other) { return concernTheSame(other, message); });
        const auto performed = mustWait ? Done {} : perform(message);
        if (!performed && !m_mailbox.waits(message))
            continue; // its guest has just posted another one instead of it
        report(performed);
        if (mustWait || !performed) {
            blocked += message;
            continue;
        }
        if (message.kind == Kind::RemoveAll)
            dropAll(std::exchange(blocked, {}));
        if (message.kind != Kind::Put)
            report(m_mailbox.drop(message));
        m_entries = changedBy(message, std::move(m_entries));
        m_hasTakenRequests = m_isIndexBehind = true;
    }
    if (!blocked.isEmpty())
        readAgain();
}

void HistoryKeeper::dropAll(const QList<Message> &messages)
{
    for (const Message &message : messages)
        report(m_mailbox.drop(message));
}

/// After a failure that may have done half of something: what is on the disk counts.
void HistoryKeeper::readAgain()
{
    m_entries = m_files.load().entries;
    m_isIndexBehind = true;
}

void HistoryKeeper::indexIsBehind()
{
    m_isIndexBehind = true;
    if (std::chrono::steady_clock::now() - m_indexWritten >= indexInterval)
        settle();
}

void HistoryKeeper::settle()
{
    if (!m_isIndexBehind || !m_lock.isHeld())
        return;
    const auto saved = m_files.save(m_entries);
    report(saved);
    m_isIndexBehind = !saved;
    m_indexWritten = std::chrono::steady_clock::now();
}

} // namespace tessaly
