// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/History/HistoryRepair.h"

#include "core/Document/PackageFolder.h"
#include "core/History/HistoryFolder.h"
#include "core/History/HistoryLog.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QMap>
#include <QSet>

namespace tessaly::HistoryRepair {

namespace {

struct Candidate {
    QString path;
    QDateTime modified;
};

/// The entry of a folder that is a package to the last byte.
std::optional<HistoryEntry> entryOfWhole(const QString &path)
{
    static constexpr qint64 maxBytes = 64 << 20;
    const QFileInfo folder(path);
    if (folder.isSymLink() || !folder.isDir())
        return std::nullopt;
    const auto json = PackageFolder::Reader(path).entry(HistoryFolder::entryName, maxBytes);
    if (!json)
        return std::nullopt;
    const auto entry = HistoryEntry::fromJson(QJsonDocument::fromJson(*json).object());
    if (!entry || !TessalyDocument::contents(path))
        return std::nullopt;
    return *entry;
}

} // namespace

void restorePackages(const HistoryStore &files)
{
    const auto listing = HistoryFolder::list(files.directory);
    if (listing.error != 0)
        return; // nobody knows what is in its place
    const QSet<QUuid> inPlace(listing.packages.begin(), listing.packages.end());
    QMap<QUuid, Candidate> missing;
    for (const QString &name : listing.unfinished) {
        const QString path = QDir(files.directory).filePath(name);
        const auto entry = entryOfWhole(path);
        if (!entry || inPlace.contains(entry->id))
            continue;
        Candidate &best = missing[entry->id];
        if (best.path.isEmpty() || best.modified < entry->modified)
            best = { path, entry->modified };
    }
    for (auto found = missing.cbegin(); found != missing.cend(); ++found)
        HistoryLog::report(files.adopt(found->path, found.key()));
}

void sweep(const HistoryStore &files)
{
    const QDir folder(files.directory);
    const auto listing = HistoryFolder::list(files.directory);
    if (listing.error != 0)
        return;
    for (const QString &name : listing.unfinished + listing.removed)
        HistoryLog::reportLeftOver(HistoryFolder::removeTree(folder.filePath(name)));
    const QSet<QUuid> inPlace(listing.packages.begin(), listing.packages.end());
    for (const QUuid &id : listing.changed) { // where a writer may have been killed inside the package
        if (!inPlace.contains(id))
            continue;
        const QString package = files.packagePath(id);
        const auto inside = HistoryFolder::list(package);
        for (const QString &name : inside.unfinished)
            HistoryLog::reportLeftOver(HistoryFolder::removeTree(QDir(package).filePath(name)));
    }
    for (const QUuid &id : listing.recognizing) {
        if (!inPlace.contains(id))
            HistoryLog::reportLeftOver(files.clearRecognizing(id));
    }
}

} // namespace tessaly::HistoryRepair
