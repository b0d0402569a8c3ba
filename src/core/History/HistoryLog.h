// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Base/Result.h"

/// What the log says of the history. Nothing where the outcome is no failure.
namespace tessaly::HistoryLog {

/// Something was not kept.
void report(const Outcome &outcome);

/// Something that is of no use any more is still there; it is tried again at the next start.
void reportLeftOver(const Outcome &outcome);

} // namespace tessaly::HistoryLog
