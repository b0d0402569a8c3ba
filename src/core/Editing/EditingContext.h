// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/CanvasTransform.h"
#include "core/Rendering/TextGeometry.h"

namespace tessaly {

/// What the gestures on one canvas share.
struct EditingContext {
    AnnotationStore &store;
    TextGeometry &text;
    CanvasTransform transform = {};
    bool snapping = true;
    bool touch = false; ///< the last pointer was a finger or a pen

    QRectF picture() const { return { QPointF(), store.image().pointSize }; }

    /// A screen distance within which a finger is less exact than a mouse, in image points.
    double reach(double viewPixels) const { return transform.toImage(viewPixels * (touch ? 1.5 : 1)); }

    /// Selects a mark and shows its style as that of the tool.
    void select(const Annotation &mark) const
    {
        const Annotation copy = mark; // the list may move below
        store.setSelectedID(copy.id);
        store.adoptStyle(copy);
    }
};

} // namespace tessaly
