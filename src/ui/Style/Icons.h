// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace tessaly {

/// The program's own line icons: one family, drawn in the colour of the text they stand beside, sharp at every scale,
/// with no icon theme needed.
namespace Icons {

/// The icon called `name` (an SVG file of ui/Style/icons without its extension). A name that is not there is a fault of
/// the program: it asserts, and gives an empty icon. It follows the palette: normal, disabled, selected.
QIcon icon(QLatin1StringView name);

/// The names of all icons.
QStringList names();

/// The program itself, in its own colours, in the sizes that window managers ask for.
QIcon application();

} // namespace Icons

} // namespace tessaly
