// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Document/TessalyDocument.h"
#include "core/History/HistoryEntry.h"

namespace tessaly {

/// The history's folder: "index.json", one package per entry ("<id>.tessaly" with "History.json" in it), and the
/// markers "<id>.recognizing". Folders are readable by their owner alone.
///
/// Each call does one thing on the disk, whole or not at all; who may change the folder is HistoryKeeper's business.
/// A value; any thread.
struct HistoryStore {
    QString directory;

    /// "tessaly/History" in the user's data folder.
    static QString defaultDirectory();

    struct Loaded {
        QList<HistoryEntry> entries; ///< sorted
        bool repaired = false; ///< the index was missing or damaged, or did not agree with the packages
        std::optional<Failure> problem; ///< why the folder cannot be read; then there are no entries
        /// An index is there that cannot be used, as one of a newer version; it should be put aside before save().
        bool indexIsUnusable = false;
    };
    /// Reads the index and brings it into agreement with the packages, whose "History.json" wins. Nothing is written.
    Loaded load() const;

    /// Writes the index. The entries must be those of load() with the changes since: what write() had noted about
    /// packages that the index does not know is forgotten.
    Outcome save(const QList<HistoryEntry> &entries) const;
    /// Gives an index that cannot be used another, hidden name.
    Outcome putIndexAside() const;

    /// Makes the folder when it is missing, and closes it to others when it is the user's own and open.
    Outcome makeFolder() const;

    /// Writes the entry's package with its "History.json" in one step.
    Outcome write(const TessalyDocument::Package &package, const HistoryEntry &entry) const;
    /// Writes "History.json" alone into the package that is there.
    Outcome write(const HistoryEntry &entry) const;
    Result<HistoryEntry> readEntry(const QUuid &id) const;
    QList<QUuid> packageIDs() const;
    QString packagePath(const QUuid &id) const;

    /// The entries of these packages, sorted, by their "History.json"; one without a readable file is made up from the
    /// rest of its package.
    QList<HistoryEntry> rebuild(const QList<QUuid> &from) const;

    /// Moves a whole package from elsewhere on the same file system to its place, where it replaces one that is there.
    /// After a kill half-way the package is still where it came from and can be moved again.
    Outcome adopt(const QString &fromPath, const QUuid &id) const;

    /// Takes packages away, each in one step, and then deletes them. That one is not there is no failure. As many as
    /// can be; the first failure.
    Outcome remove(const QList<QUuid> &ids) const;

    Outcome markRecognizing(const QUuid &id) const;
    Outcome clearRecognizing(const QUuid &id) const;
    /// Whose text recognition has not finished.
    QList<QUuid> interruptedRecognitions() const;
};

} // namespace tessaly
