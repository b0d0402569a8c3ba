// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryStore.h"

#include "core/Document/PackageFolder.h"
#include "core/History/HistoryFolder.h"
#include "core/History/HistoryIndexFile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QJsonDocument>
#include <QStandardPaths>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {

namespace {

constexpr qint64 maxEntryBytes = 64 << 20;
constexpr qint64 maxImageBytes = qint64(1) << 30;

QString in(const QString &folder, const QString &name) { return QDir(folder).filePath(name); }

QString changedPath(const QString &folder, const QUuid &id)
{
    return in(folder, QLatin1StringView(HistoryFolder::changedPrefix) + HistoryFolder::nameOf(id));
}

QString recognizingPath(const QString &folder, const QUuid &id)
{
    return in(folder, HistoryFolder::nameOf(id) + QLatin1StringView(HistoryFolder::recognizingSuffix));
}

QByteArray entryJson(const HistoryEntry &entry) { return QJsonDocument(entry.toJson()).toJson(); }

QSize sizeOf(const PackageFolder::Reader &package)
{
    if (auto png = package.entry(PackageFolder::imageName, maxImageBytes)) {
        QBuffer buffer(&*png);
        return QImageReader(&buffer, "png").size();
    }
    const auto json = package.entry(PackageFolder::documentName, AnnotationDocument::maxJsonBytes);
    const auto document = json ? AnnotationDocument::decoded(*json) : Result<AnnotationDocument>(Failure {});
    return document ? document->pixelSize.value_or(QSizeF()).toSize() : QSize();
}

/// What can be said of a package whose "History.json" is missing or damaged; nothing when it holds no capture either.
std::optional<HistoryEntry> madeUp(const QString &path, const QUuid &id)
{
    const QDir folder(path);
    const QFileInfo image(folder.filePath(QLatin1StringView(PackageFolder::imageName)));
    const QFileInfo document(folder.filePath(QLatin1StringView(PackageFolder::documentName)));
    const QFileInfo &dated = image.exists() ? image : document;
    if (!dated.exists())
        return std::nullopt;
    const QDateTime written = dated.lastModified().toUTC();
    const QSize pixels = sizeOf(PackageFolder::Reader(path)).expandedTo({ 0, 0 });
    return HistoryEntry { .id = id,
        .title = QCoreApplication::translate("History", "Screenshot"),
        .created = written,
        .modified = written,
        .pixelWidth = pixels.width(),
        .pixelHeight = pixels.height() };
}

struct Found {
    HistoryEntry entry;
    bool isRead; ///< from "History.json", and not made up
};

std::optional<Found> entryOf(const HistoryStore &files, const QUuid &id)
{
    if (auto read = files.readEntry(id))
        return Found { *std::move(read), true };
    if (auto made = madeUp(files.packagePath(id), id))
        return Found { *std::move(made), false };
    return std::nullopt;
}

} // namespace

QString HistoryStore::defaultDirectory()
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return in(data.isEmpty() ? QDir::tempPath() : data, QStringLiteral("tessaly/History"));
}

HistoryStore::Loaded HistoryStore::load() const
{
    const auto listing = HistoryFolder::list(directory);
    if (listing.error == ENOENT)
        return {};
    if (listing.error != 0)
        return { .problem = HistoryFolder::notRead(directory, listing.error) };
    HistoryIndexFile index(directory);
    const QSet<QUuid> changed(listing.changed.begin(), listing.changed.end());
    const bool isThere = index.state() != HistoryIndexFile::State::Missing;
    Loaded loaded { .repaired
        = isThere ? index.state() == HistoryIndexFile::State::Unusable : !listing.packages.isEmpty(),
        .indexIsUnusable = index.state() == HistoryIndexFile::State::Unusable };
    loaded.entries.reserve(listing.packages.size());
    for (const QUuid &id : listing.packages) {
        auto known = index.take(id);
        if (known && !changed.contains(id) && index.isNewerThanEntryOf(id)) {
            loaded.entries.append(*std::move(known));
            continue;
        }
        auto found = entryOf(*this, id);
        if (found && !found->isRead && known)
            found->entry = *known; // the index knows more than what can be guessed
        loaded.repaired = loaded.repaired || !found != !known || (found && found->entry != *known);
        if (found)
            loaded.entries.append(std::move(found->entry));
    }
    loaded.repaired = loaded.repaired || !index.isUsedUp();
    loaded.entries = sorted(std::move(loaded.entries));
    return loaded;
}

Outcome HistoryStore::save(const QList<HistoryEntry> &entries) const
{
    const auto changed = HistoryFolder::list(directory).changed;
    const QString path = in(directory, QLatin1StringView(HistoryFolder::indexName));
    const HistoryIndex index { .entries = sorted(entries) };
    if (auto written = SafeFile::replace(path, index.encoded(), SafeFile::Access::OwnerOnly); !written)
        return written;
    // Only now that the index is on the disk; if the machine stops before these are gone, they cost a second reading.
    for (const QUuid &id : changed) {
        if (auto removed = HistoryFolder::removeTree(changedPath(directory, id)); !removed)
            return removed;
    }
    return Done {};
}

Outcome HistoryStore::putIndexAside() const
{
    return HistoryFolder::rename(in(directory, QLatin1StringView(HistoryFolder::indexName)),
        in(directory, HistoryFolder::freshName(HistoryFolder::oldIndexPrefix)));
}

Outcome HistoryStore::makeFolder() const
{
    if (auto made = SafeFile::makeFolder(directory, SafeFile::Access::OwnerOnly); !made)
        return made;
    const QByteArray name = QFile::encodeName(directory);
    struct stat status = {};
    const bool isOpenToOthers
        = ::stat(name.constData(), &status) == 0 && status.st_uid == ::geteuid() && (status.st_mode & 077) != 0;
    if (isOpenToOthers && ::chmod(name.constData(), status.st_mode & 0700) != 0)
        return HistoryFolder::notWritten(directory, errno);
    return Done {};
}

// The note that a package has changed comes before the package, in the same folder, so that no order in which the
// file system keeps its promises can show the new package without it.
Outcome HistoryStore::write(const TessalyDocument::Package &package, const HistoryEntry &entry) const
{
    if (auto noted = HistoryFolder::touch(changedPath(directory, entry.id)); !noted)
        return noted;
    auto files = TessalyDocument::entries(package);
    files.append({ QLatin1StringView(HistoryFolder::entryName), entryJson(entry) });
    return SafeFile::writeFolder(packagePath(entry.id), files, SafeFile::Access::OwnerOnly);
}

Outcome HistoryStore::write(const HistoryEntry &entry) const
{
    const QString package = packagePath(entry.id);
    if (QFileInfo(package).isSymLink() || !QFileInfo(package).isDir())
        return HistoryFolder::notWritten(package, ENOENT);
    if (auto noted = HistoryFolder::touch(changedPath(directory, entry.id)); !noted)
        return noted;
    return SafeFile::replace(
        in(package, QLatin1StringView(HistoryFolder::entryName)), entryJson(entry), SafeFile::Access::OwnerOnly);
}

Result<HistoryEntry> HistoryStore::readEntry(const QUuid &id) const
{
    const PackageFolder::Reader package(packagePath(id));
    const auto json = package.entry(HistoryFolder::entryName, maxEntryBytes);
    if (!json)
        return json.failure();
    auto entry = HistoryEntry::fromJson(QJsonDocument::fromJson(*json).object());
    if (entry)
        entry->id = id; // a package that was copied to another name is an entry of its own
    return entry;
}

QList<QUuid> HistoryStore::packageIDs() const { return HistoryFolder::list(directory).packages; }

QString HistoryStore::packagePath(const QUuid &id) const
{
    return in(directory, HistoryFolder::nameOf(id) + QLatin1StringView(HistoryFolder::packageSuffix));
}

QList<HistoryEntry> HistoryStore::rebuild(const QList<QUuid> &from) const
{
    QList<HistoryEntry> entries;
    for (const QUuid &id : from) {
        if (auto found = entryOf(*this, id))
            entries.append(std::move(found->entry));
    }
    return sorted(std::move(entries));
}

Outcome HistoryStore::adopt(const QString &fromPath, const QUuid &id) const
{
    const QString place = packagePath(id);
    const bool isTaken = QFileInfo(place).isDir() && !QFileInfo(place).isSymLink();
    const QString away = in(directory, HistoryFolder::freshName(HistoryFolder::removedPrefix));
    if (auto noted = HistoryFolder::touch(changedPath(directory, id)); !noted)
        return noted;
    // Not an exchange: after a kill nobody could tell which of the two is the new one.
    if (isTaken) {
        if (auto stepped = HistoryFolder::rename(place, away); !stepped)
            return stepped;
    }
    if (auto moved = HistoryFolder::rename(fromPath, place); !moved) {
        if (isTaken) {
            if (auto back = HistoryFolder::rename(away, place); !back)
                return back;
        }
        return moved;
    }
    for (const QString &folder : { directory, QFileInfo(fromPath).path() }) {
        if (auto flushed = HistoryFolder::flush(folder); !flushed)
            return flushed;
    }
    return isTaken ? HistoryFolder::removeTree(away) : Done {};
}

Outcome HistoryStore::remove(const QList<QUuid> &ids) const
{
    QStringList names;
    for (const QUuid &id : ids)
        names += QFileInfo(packagePath(id)).fileName();
    return HistoryFolder::takeAway(directory, names);
}

Outcome HistoryStore::markRecognizing(const QUuid &id) const
{
    return HistoryFolder::touch(recognizingPath(directory, id));
}

Outcome HistoryStore::clearRecognizing(const QUuid &id) const
{
    return HistoryFolder::removeFile(recognizingPath(directory, id));
}

QList<QUuid> HistoryStore::interruptedRecognitions() const { return HistoryFolder::list(directory).recognizing; }

} // namespace tessaly
