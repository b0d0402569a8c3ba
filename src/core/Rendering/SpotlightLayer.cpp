// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ContinuousCorners.h"
#include "core/Rendering/MarkPainters.h"
#include "core/Rendering/Strokes.h"

#include <algorithm>

namespace tessaly {

void prepareSpotlights(
    const QList<Annotation> &spotlights, const QRectF &canvas, const QRectF &paintable, PreparedMark &out)
{
    constexpr double cornerRadius = 10;
    if (spotlights.isEmpty())
        return;
    // Where two holes overlap, the rule fills the overlap again.
    QPainterPath dimmed;
    dimmed.setFillRule(Qt::OddEvenFill);
    dimmed.addRect(canvas);
    double darkness = 0;
    for (const Annotation &mark : spotlights) {
        if (mark.spotEllipse)
            dimmed.addEllipse(mark.rect());
        else
            dimmed.addPath(continuousCornerPath(mark.rect(), cornerRadius));
        darkness = std::max(darkness, mark.spotDim);
    }
    QPainterPath visible = Strokes::within(dimmed, paintable);
    out.bounds = canvas;
    out.steps.emplace_back(FillStep { std::move(visible), QColor::fromRgbF(0, 0, 0, float(darkness)), canvas });
}

} // namespace tessaly
