// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>

namespace tessaly::TrayIcon {

/// Tessaly in the sizes of trays, at one and two pixels a point. It stands on a ground of its own, so that it is seen
/// on light and on dark panels, and keeps its shape where a panel shows all icons in one colour.
QIcon icon();

/// One size of it; `pixelSide` in device pixels. Every edge lies between two pixels.
QImage drawn(int pixelSide);

} // namespace tessaly::TrayIcon
