// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/SelectionOverlay.h"

namespace tessaly {

class Settings;

/// The area that was dragged last, in the setting "lastRegionRect".
namespace LastRegion {

void save(Settings &settings, const RegionSelection &selection);

/// Absent when nothing valid is stored: five numbers, at least 2 points wide and high, on a display that is there.
std::optional<RegionSelection> load(const Settings &settings, const QList<Display> &displays);

} // namespace LastRegion

} // namespace tessaly
