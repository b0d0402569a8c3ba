// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/CanvasAdornments.h"

#include <Qt>

namespace tessaly {

/// Where the pointer is and what is held with it.
struct GestureInput {
    QPointF point; ///< image points
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    bool space = false;

    bool has(Qt::KeyboardModifier modifier) const { return modifiers.testFlag(modifier); }
};

/// One drag, from the moment that the pointer left the place of the press. Destroyed without finish(), it puts back
/// what was before it.
class Gesture {
public:
    Gesture() = default;
    virtual ~Gesture() = default;
    Q_DISABLE_COPY_MOVE(Gesture)

    /// Called once, before the first update; records the undo step.
    virtual void begin() = 0;
    /// The pointer, a modifier or the view moved.
    virtual void update(const GestureInput &input) = 0;
    virtual void finish() = 0;
    /// Something else took the mark away meanwhile: nothing is put back.
    virtual void abandon() = 0;

    /// A notch of the wheel; false when the gesture has no use for it.
    virtual bool wheel(int) { return false; }
    virtual CursorShape cursor() const = 0;
    /// What the mark in hand snapped to.
    virtual QList<QLineF> guides() const { return {}; }
    /// An unfinished mark has no handles yet.
    virtual bool showsHandles() const { return true; }
};

} // namespace tessaly
