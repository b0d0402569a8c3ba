// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QByteArray>
#include <QList>
#include <QPair>

/// Writing that shows either the old content or the whole new one, whenever the program or the machine stops.
namespace tessaly::SafeFile {

/// Who may read what is new: whom the user's mask leaves, or the user alone (folders 0700, files 0600).
enum class Access { Usual, OwnerOnly };

/// What the names of unfinished files and folders begin with.
inline constexpr char unfinishedPrefix[] = ".tessaly-";

/// Writes `bytes` beside `path`, flushes file and folder to the disk, and renames over `path`.
/// A symbolic link at `path` is followed, so that the file it names is replaced. A file keeps its permissions, and one
/// that may not be written fails. A device or a pipe is written to and not replaced. On failure `path` is as it was and
/// nothing new lies beside it; the sentence names the path and the reason. Only a program that is killed leaves its
/// unfinished file, ".tessaly-…", behind.
Outcome write(const QString &path, const QByteArray &bytes, Access access = Access::Usual);

/// The same for a file that belongs to the program: a link at `path` is replaced and not followed, and the permissions
/// are always those of `access`.
Outcome replace(const QString &path, const QByteArray &bytes, Access access);

/// Whether create() made the file, or left what has its name already.
enum class Created { Yes, NameTaken };
/// Writes a file that is new: whatever stands at `path`, also when another process puts it there meanwhile, stays.
Result<Created> create(const QString &path, const QByteArray &bytes, Access access = Access::Usual);

/// Makes a folder, with those above it, that is on the disk afterwards; one that is there, or a link to one, stays as
/// it is. `access` is for the last one.
Outcome makeFolder(const QString &path, Access access = Access::Usual);

/// A file of a folder to be written: its path relative to the folder, and its content.
using Entry = QPair<QString, QByteArray>;

/// Writes a folder of files with the same promise. A folder that stands at `path` is exchanged for the new one in one
/// step and then removed as a whole; anything else at `path` is a failure.
Outcome writeFolder(const QString &path, const QList<Entry> &entries, Access access = Access::Usual);

/// Makes the renames and removals in a folder lasting.
Outcome flush(const QString &folder);

/// The sentence for a system call's error number.
Failure notWritten(const QString &path, int error);

} // namespace tessaly::SafeFile
