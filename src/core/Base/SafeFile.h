// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QByteArray>
#include <QList>
#include <QPair>

/// Writing that shows either the old content or the whole new one, whenever the program or the machine stops.
namespace tessaly::SafeFile {

/// Writes `bytes` beside `path`, flushes file and folder to the disk, and renames over `path`.
/// A symbolic link at `path` is followed, so that the file it names is replaced. A file keeps its permissions, and one
/// that may not be written fails. A device or a pipe is written to and not replaced. On failure `path` is as it was and
/// nothing new lies beside it; the sentence names the path and the reason. Only a program that is killed leaves its
/// unfinished file, ".tessaly-…", behind.
Outcome write(const QString &path, const QByteArray &bytes);

/// A file of a folder to be written: its path relative to the folder, and its content.
using Entry = QPair<QString, QByteArray>;

/// Writes a folder of files with the same promise. A folder that stands at `path` is exchanged for the new one in one
/// step and then removed as a whole; anything else at `path` is a failure.
Outcome writeFolder(const QString &path, const QList<Entry> &entries);

} // namespace tessaly::SafeFile
