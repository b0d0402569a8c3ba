// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <optional>

/// Where new windows go. Logical pixels of the desktop.
namespace tessaly::WindowPlacement {

/// Where a window of that size goes: in the middle for the first, else a step below and right of the `previous` one; a
/// window that would leave the screen starts again at its corner.
QPoint position(QSize size, const QRect &available, std::optional<QPoint> previous);

} // namespace tessaly::WindowPlacement
