// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Failure.h"

#include <chrono>
#include <optional>

/// How a picture of the desktop was not to be had from the portal, in the user's words.
namespace tessaly::PortalFailure {

enum class Kind { Cancelled, Denied, Missing, Silent, Unusable };

Failure cancelled();
Failure denied();
Failure missing();
Failure silent(std::chrono::milliseconds patience);
/// The picture that the portal named cannot be used; `reason` is a sentence.
Failure unusable(const QString &reason);

/// What the user can do about it; absent where nothing needs doing. `desktop` as XDG_CURRENT_DESKTOP names it.
std::optional<QString> wayOut(Kind kind, const QString &desktop);

} // namespace tessaly::PortalFailure
