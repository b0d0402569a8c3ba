// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Imaging/ColorHex.h"
#include "core/Imaging/ContinuousCorners.h"
#include "core/Rendering/MarkPainters.h"
#include "core/Rendering/Strokes.h"

namespace tessaly {

static void fillOrStroke(
    const QPainterPath &shape, const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    const Strokes::Pen pen { mark.lineWidth, Qt::FlatCap, Qt::MiterJoin };
    out.fill(Strokes::within(mark.filled ? shape : Strokes::outline(shape, pen), context.paintable),
        ColorHex::toColor(mark.colorHex));
}

void prepareRectangle(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    constexpr double cornerRadius = 6;
    if (!mark.rect().isNull())
        fillOrStroke(continuousCornerPath(mark.rect(), cornerRadius), mark, context, out);
}

void prepareEllipse(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    QPainterPath shape;
    shape.addEllipse(mark.rect());
    if (!mark.rect().isNull())
        fillOrStroke(shape, mark, context, out);
}

void prepareLine(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    const QPainterPath stroke = Strokes::outline(QList { mark.p1, mark.p2 }, { mark.lineWidth });
    out.fill(Strokes::within(stroke, context.paintable), ColorHex::toColor(mark.colorHex));
}

void preparePen(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    const QPainterPath stroke = Strokes::outline(mark.points, { mark.lineWidth });
    out.fill(Strokes::within(stroke, context.paintable), ColorHex::toColor(mark.colorHex));
}

void prepareHighlight(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    QColor color = ColorHex::toColor(mark.colorHex);
    color.setAlphaF(float(color.alphaF() * mark.highlightOpacity));
    out.add(MultiplyStep { mark.rect().intersected(context.paintable), color });
}

} // namespace tessaly
