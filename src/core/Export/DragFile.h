// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Clock.h"
#include "core/Base/Result.h"

namespace tessaly {

/// What a picture that is dragged out is called, without an extension: "Tessaly 2024-05-01 at 14.03.22" in any
/// language.
QString dragFileName(const Clock &clock);

/// The folder of this user alone for files that other programs fetch; it lasts at most until the user logs out.
QString privateTemporaryFolder();

/// Writes `bytes` as `fileName` into the folder "Drag" of `temporaryFolder`, which is emptied first: only the last drag
/// is kept. `temporaryFolder` belongs to the user alone. The path that was written.
Result<QString> writeDragFile(const QByteArray &bytes, const QString &fileName, const QString &temporaryFolder);

/// The same in the folder "Share", for a file that another program is asked to open.
Result<QString> writeShareFile(const QByteArray &bytes, const QString &fileName, const QString &temporaryFolder);

} // namespace tessaly
