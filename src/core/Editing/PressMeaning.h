// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/EditingContext.h"
#include "core/Editing/Gesture.h"

namespace tessaly {

/// Where a press fell.
struct PressPlace {
    QPointF view;
    QPointF point; ///< the same in image points
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    QList<Handle> handles; ///< of the selected mark
    double handleScale = 1;

    bool has(Qt::KeyboardModifier modifier) const { return modifiers.testFlag(modifier); }
};

enum class ClickMeaning { Nothing, Select, EditText, Deselect, Place };

/// What a press becomes: a click when the pointer stays, a gesture when it is dragged.
struct PressMeaning {
    ClickMeaning click = ClickMeaning::Nothing;
    std::optional<QUuid> mark; ///< that a click selects or edits
    bool movesSelected = false; ///< a drag moves the selected mark
    std::unique_ptr<Gesture> drag; ///< null when dragging means nothing; then a tool that places marks still does
};

/// The table of tools, keys and places. Makes the gesture only when `forDrag`; hovering asks for the rest.
enum class ForDrag { No, Yes };
PressMeaning meaningOf(const PressPlace &place, EditingContext &context, ForDrag forDrag);

} // namespace tessaly
