// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointF>
#include <Qt>

namespace tessaly {

/// One event of a mouse, pen or finger as the canvas sees it.
struct PointerInput {
    QPointF position; ///< view pixels
    Qt::MouseButton button = Qt::NoButton; ///< that was pressed or released
    Qt::MouseButtons buttons = Qt::NoButton; ///< held
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    bool touch = false; ///< finger or pen: distances grow
};

} // namespace tessaly
