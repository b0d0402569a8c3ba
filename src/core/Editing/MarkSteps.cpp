// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkSteps.h"

#include "core/Editing/MarkReshaping.h"
#include "core/Editing/MarkShape.h"
#include "core/Editing/MarkTraits.h"

#include <algorithm>

namespace tessaly {

Annotation withFarEdgeMoved(const Annotation &mark, QPointF step, TextGeometry &text)
{
    const QRectF frame = MarkShape::frame(mark, text);
    switch (traitsOf(mark.kind).form) {
    case MarkForm::Line:
        return MarkReshaping::withEnd(mark, HandleRole::End, mark.p2 + step);
    case MarkForm::Text: {
        const double factor = step.x() != 0 ? 1 + step.x() / frame.width() : 1 + step.y() / frame.height();
        return MarkReshaping::scaledText(mark, factor, HandleRole::TopLeft, text);
    }
    case MarkForm::Box:
    case MarkForm::Path:
        break;
    }
    const QRectF stepped(
        frame.topLeft(), QSizeF(std::max(frame.width() + step.x(), 1.0), std::max(frame.height() + step.y(), 1.0)));
    return MarkReshaping::fitted(mark, frame, stepped);
}

} // namespace tessaly
