// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Rendering/MarkPainters.h"

namespace tessaly {

/// Adds a text whose layout corner comes to `topLeft` at `fontSize` points. A halo, where its width is above 0, lies
/// around the outlines and below them.
struct TextPlacement {
    QPointF topLeft;
    double fontSize = 1;
    QColor color;
    double haloWidth = 0; ///< points beyond the outline
    QColor haloColor = {};
};
void addText(const TextShape &shape, const TextPlacement &placement, const MarkContext &context, PreparedMark &out);

/// The corner at which the ink of a text is centred on a point.
QPointF cornerForInkCentre(const TextShape &shape, double fontSize, QPointF centre);

} // namespace tessaly
