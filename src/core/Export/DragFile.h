// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Clock.h"
#include "core/Base/Result.h"

namespace tessaly {

/// What a picture that is dragged out is called, without an extension: "Tessaly 2024-05-01 at 14.03.22" in any
/// language.
QString dragFileName(const Clock &clock);

/// Writes `bytes` as `fileName` into the folder "Drag" of `temporaryFolder`, which is emptied first: only the last drag
/// is kept. `temporaryFolder` belongs to the user alone. The path that was written.
Result<QString> writeDragFile(const QByteArray &bytes, const QString &fileName, const QString &temporaryFolder);

} // namespace tessaly
