// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryEntry.h"

namespace tessaly {

class CommandContext;

/// The text of captures that nobody has read yet, as when no window has been open since they were taken.
namespace PendingTexts {

/// Reads the text of those of `entries` that have none and puts it into them. Where no Tessaly runs, which would do the
/// same, each text is also kept in the history as soon as it is there. What cannot be read is told on the console.
void read(QList<HistoryEntry> &entries, CommandContext &context);

} // namespace PendingTexts

} // namespace tessaly
