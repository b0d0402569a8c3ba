// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/SafeFile.h"

#include <QList>
#include <QStringList>
#include <QUuid>

/// The names in the history's folder, and what is done to them without following a link out of it.
namespace tessaly::HistoryFolder {

inline constexpr char indexName[] = "index.json";
inline constexpr char entryName[] = "History.json"; ///< in a package
inline constexpr char packageSuffix[] = ".tessaly";
inline constexpr char recognizingSuffix[] = ".recognizing";
inline constexpr char changedPrefix[] = ".changed-"; ///< and an id: the index may not know its package as it is
inline constexpr auto &unfinishedPrefix = SafeFile::unfinishedPrefix; ///< of what was killed while it was written
inline constexpr char removedPrefix[] = ".removed-"; ///< what is being deleted
inline constexpr char oldIndexPrefix[] = ".index-"; ///< an index that could not be used

/// What lies in the folder. Anything that has a name of another form, or is not of the kind that its name says, is
/// somebody else's and in no list.
struct Listing {
    QList<QUuid> packages; ///< real folders; links are none
    QList<QUuid> recognizing;
    QList<QUuid> changed;
    QStringList unfinished;
    QStringList removed;
    QStringList oldIndexes;
    int error = 0; ///< why the folder could not be read
};
Listing list(const QString &folder);

QString nameOf(const QUuid &id);
/// The id that a name consists of, in the one form that is written here; null for any other.
QUuid idOf(QLatin1StringView name);

/// Deletes a file, a link or a whole folder; that nothing is there is no failure.
Outcome removeTree(const QString &path);
/// Takes entries of the folder away, each in one step and all on the disk afterwards, then deletes them. What is left
/// of them, by a kill or because it cannot be deleted, bears the prefix of what is being deleted. As many as can be;
/// the first failure.
Outcome takeAway(const QString &folder, const QStringList &names);

Outcome rename(const QString &from, const QString &to);
/// Puts an empty file there; one that is there stays.
Outcome touch(const QString &path);
Outcome removeFile(const QString &path);
using SafeFile::flush;

/// A hidden name of this prefix that nothing else uses.
QString freshName(const char *prefix);

using SafeFile::notWritten;
Failure notRead(const QString &path, int error);

} // namespace tessaly::HistoryFolder
