// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryMailbox.h"

#include "core/Document/PackageFolder.h"
#include "core/History/HistoryFolder.h"
#include "core/History/HistoryLock.h"
#include "core/History/HistoryLog.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRandomGenerator>

#include <cerrno>

namespace tessaly {

namespace {

using Kind = HistoryMailbox::Kind;
using Message = HistoryMailbox::Message;

constexpr char mailboxName[] = ".mailbox";
constexpr char putAsidePrefix[] = ".refused-";
constexpr int numberLength = 20;
constexpr qint64 maxMessageBytes = 64 << 20;

Message putIn(const QString &path, const QUuid &id)
{
    const PackageFolder::Reader package(path);
    const auto json = package.entry(HistoryFolder::entryName, maxMessageBytes);
    if (!json || !PackageFolder::holdsPackage(path))
        return { path };
    auto entry = HistoryEntry::fromJson(QJsonDocument::fromJson(*json).object());
    if (!entry || entry->id != id)
        return { path };
    return { .path = path, .kind = Kind::Put, .entry = *std::move(entry) };
}

Message removalOf(const QString &path, const QJsonArray &names)
{
    Message message { .path = path, .kind = Kind::Remove };
    for (const QJsonValue &name : names) {
        message.ids += QUuid::fromString(name.toString());
        if (message.ids.last().isNull())
            return { path };
    }
    return message;
}

Message requestIn(const QString &path)
{
    const QFileInfo file(path);
    const PackageFolder::Reader folder(file.path());
    const auto json = folder.entry(QFile::encodeName(file.fileName()).constData(), maxMessageBytes);
    const QJsonObject request = json ? QJsonDocument::fromJson(*json).object() : QJsonObject();
    if (request.value(u"removeAll").toBool())
        return { .path = path, .kind = Kind::RemoveAll };
    if (request.value(u"remove").isArray())
        return removalOf(path, request.value(u"remove").toArray());
    auto entry = HistoryEntry::fromJson(request.value(u"update").toObject());
    if (!entry)
        return { path };
    return { .path = path, .kind = Kind::Update, .entry = *std::move(entry) };
}

Message messageIn(const QString &path)
{
    const QFileInfo file(path);
    if (file.isSymLink() || !file.isDir())
        return requestIn(path);
    const QByteArray name = file.completeBaseName().section(u'.', 1).toLatin1();
    return putIn(path, HistoryFolder::idOf(QLatin1StringView(name)));
}

/// Whether an earlier message need not be performed, given the later one.
bool isSuperseded(const Message &earlier, const Message &by)
{
    if (earlier.kind == Kind::Malformed || by.kind == Kind::RemoveAll)
        return earlier.kind != Kind::Malformed;
    const bool isOfEntry = earlier.kind == Kind::Put || earlier.kind == Kind::Update;
    if (by.kind == Kind::Remove)
        return isOfEntry && by.ids.contains(earlier.entry.id);
    return isOfEntry && earlier.entry.id == by.entry.id && (by.kind == Kind::Put || earlier.kind == Kind::Update);
}

} // namespace

HistoryMailbox::HistoryMailbox(const QString &historyFolder) :
    m_path(QDir(historyFolder).filePath(QLatin1StringView(mailboxName)))
{
}

Outcome HistoryMailbox::makeFolder() const
{
    if (QFileInfo(m_path).isSymLink())
        return HistoryFolder::notWritten(m_path, ELOOP);
    return SafeFile::makeFolder(m_path, SafeFile::Access::OwnerOnly);
}

QStringList HistoryMailbox::names() const
{
    if (QFileInfo(m_path).isSymLink())
        return {};
    return QDir(m_path).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

QString HistoryMailbox::nextNumber() const
{
    // Above every message that waits, also when the clock was set back since; two that are posted at the same moment by
    // different processes have no order, and differ by chance.
    qint64 number = QDateTime::currentMSecsSinceEpoch() * 1000;
    const auto waitingNames = names();
    for (const QString &name : waitingNames)
        number = std::max(number, name.left(numberLength).toLongLong() + 1);
    return QStringLiteral("%1-%2")
        .arg(number, numberLength, 10, QChar(u'0'))
        .arg(QRandomGenerator::system()->generate());
}

Outcome HistoryMailbox::postPut(const TessalyDocument::Package &package, const HistoryEntry &entry) const
{
    if (auto made = makeFolder(); !made)
        return made;
    HistoryLock posting(m_path);
    if (auto shared = posting.share(); !shared)
        return shared;
    const QString name
        = nextNumber() + u'.' + HistoryFolder::nameOf(entry.id) + QLatin1StringView(HistoryFolder::packageSuffix);
    auto files = TessalyDocument::entries(package);
    files.append({ QLatin1StringView(HistoryFolder::entryName), QJsonDocument(entry.toJson()).toJson() });
    if (auto posted = SafeFile::writeFolder(QDir(m_path).filePath(name), files, SafeFile::Access::OwnerOnly); !posted)
        return posted;
    dropSuperseded(name, { .kind = Kind::Put, .entry = entry });
    return Done {};
}

Outcome HistoryMailbox::postUpdate(const HistoryEntry &entry) const
{
    return post({ { QStringLiteral("update"), entry.toJson() } }, { .kind = Kind::Update, .entry = entry });
}

Outcome HistoryMailbox::postRemove(const QList<QUuid> &ids) const
{
    QJsonArray names;
    for (const QUuid &id : ids)
        names.append(HistoryFolder::nameOf(id));
    return post({ { QStringLiteral("remove"), names } }, { .kind = Kind::Remove, .ids = ids });
}

Outcome HistoryMailbox::postRemoveAll() const
{
    return post({ { QStringLiteral("removeAll"), true } }, { .kind = Kind::RemoveAll });
}

Outcome HistoryMailbox::post(const QJsonObject &request, const Message &asMessage) const
{
    if (auto made = makeFolder(); !made)
        return made;
    HistoryLock posting(m_path);
    if (auto shared = posting.share(); !shared)
        return shared;
    const QString name = nextNumber() + QStringLiteral(".json");
    const QByteArray json = QJsonDocument(request).toJson(QJsonDocument::Compact);
    if (auto posted = SafeFile::replace(QDir(m_path).filePath(name), json, SafeFile::Access::OwnerOnly); !posted)
        return posted;
    dropSuperseded(name, asMessage);
    return Done {};
}

/// Only to save room: the messages would be performed in their order, with the same end.
void HistoryMailbox::dropSuperseded(const QString &name, const Message &by) const
{
    const auto all = waiting();
    for (const Message &message : all) {
        if (QFileInfo(message.path).fileName() < name && isSuperseded(message, by))
            HistoryLog::reportLeftOver(drop(message));
    }
}

QList<HistoryMailbox::Message> HistoryMailbox::waiting() const
{
    QList<Message> messages;
    const auto all = names();
    for (const QString &name : all)
        messages += messageIn(QDir(m_path).filePath(name));
    return messages;
}

bool HistoryMailbox::waits(const Message &message) const
{
    return QFileInfo(message.path).exists() || QFileInfo(message.path).isSymLink();
}

Outcome HistoryMailbox::drop(const Message &message) const
{
    return HistoryFolder::takeAway(m_path, { QFileInfo(message.path).fileName() });
}

Outcome HistoryMailbox::putAside(const Message &message) const
{
    return HistoryFolder::rename(message.path, QDir(m_path).filePath(HistoryFolder::freshName(putAsidePrefix)));
}

void HistoryMailbox::sweep() const
{
    HistoryLock alone(m_path);
    if (!QFileInfo(m_path).isDir() || QFileInfo(m_path).isSymLink() || !alone.tryTake())
        return;
    const auto left = HistoryFolder::list(m_path);
    for (const QString &name : left.unfinished + left.removed)
        HistoryLog::reportLeftOver(HistoryFolder::removeTree(QDir(m_path).filePath(name)));
}

void HistoryMailbox::forgetPutAside() const
{
    if (QFileInfo(m_path).isSymLink())
        return;
    const auto kept = QDir(m_path).entryList(
        { QLatin1StringView(putAsidePrefix) + u'*' }, QDir::AllEntries | QDir::Hidden | QDir::System);
    for (const QString &name : kept)
        HistoryLog::reportLeftOver(HistoryFolder::removeTree(QDir(m_path).filePath(name)));
}

QList<HistoryEntry> changedBy(const HistoryMailbox::Message &message, QList<HistoryEntry> entries)
{
    const auto isOf = [&](const HistoryEntry &entry) { return entry.id == message.entry.id; };
    switch (message.kind) {
    case Kind::Put:
        entries.removeIf(isOf);
        entries.append(message.entry);
        return sorted(std::move(entries));
    case Kind::Update:
        if (const auto known = std::ranges::find_if(entries, isOf); known != entries.end())
            *known = message.entry;
        return sorted(std::move(entries));
    case Kind::Remove:
        entries.removeIf([&](const HistoryEntry &entry) { return message.ids.contains(entry.id); });
        return entries;
    case Kind::RemoveAll:
        return {};
    case Kind::Malformed:
        return entries;
    }
    return entries;
}

} // namespace tessaly
