// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Editing/MarkShape.h"

#include <optional>

/// Which marks a pointer means.
namespace tessaly::MarkHitTest {

/// The screen distance from a mark within which a mouse still means it.
inline constexpr double viewTolerance = 8;

struct Query {
    const QList<Annotation> &marks; ///< the first is drawn first
    QPointF point; ///< image points
    double tolerance = viewTolerance; ///< image points
    std::optional<QUuid> selectedID = {}; ///< is also hit inside its outline
};

/// Whether a press would take hold of this mark.
bool hits(const Annotation &mark, const Query &query, TextGeometry &text);

/// The top-most of the marks that are hit; null when none is. Spotlights lie below everything else, as they are
/// drawn.
const Annotation *topmost(const Query &query, TextGeometry &text);

/// The one below the selected mark at this place; after the last the top-most again.
const Annotation *nextBelow(const Query &query, TextGeometry &text);

} // namespace tessaly::MarkHitTest
