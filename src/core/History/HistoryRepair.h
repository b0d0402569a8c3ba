// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/History/HistoryStore.h"

/// What killed processes leave in the history's folder. Only for the one who may change it.
namespace tessaly::HistoryRepair {

/// Puts back a whole package that was stepping aside when its writer was killed, where none is in its place. The newest
/// of several. Before anything else is changed.
void restorePackages(const HistoryStore &files);

/// Deletes what was unfinished or being deleted, and the markers of packages that are gone.
void sweep(const HistoryStore &files);

} // namespace tessaly::HistoryRepair
