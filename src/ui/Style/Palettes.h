// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPalette>

namespace tessaly::Palettes {

QPalette light();
QPalette dark();

/// Whether texts of the palette are lighter than what they stand on.
bool isDark(const QPalette &palette);

} // namespace tessaly::Palettes
