// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

#include <QByteArray>

namespace tessaly::SwayConnection {

/// What can be asked, with i3's numbers.
enum class Request : quint32 { Tree = 4 };

/// Asks the sway whose socket lies at the path, on a connection of its own; the answer's JSON. Fails when it does not
/// answer within two seconds.
Result<QByteArray> ask(const QString &socketPath, Request request);

} // namespace tessaly::SwayConnection
