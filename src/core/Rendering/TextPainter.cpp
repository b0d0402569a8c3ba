// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/TextPainter.h"

#include "core/Imaging/ColorHex.h"
#include "core/Rendering/Strokes.h"

namespace tessaly {

QPointF cornerForInkCentre(const TextShape &shape, double fontSize, QPointF centre)
{
    return centre - shape.ink.center() * fontSize;
}

void addText(const TextShape &shape, const TextPlacement &placement, const MarkContext &context, PreparedMark &out)
{
    const QTransform placed = QTransform::fromScale(placement.fontSize, placement.fontSize)
        * QTransform::fromTranslate(placement.topLeft.x(), placement.topLeft.y());
    const QPainterPath outline = Strokes::within(placed.map(shape.outline), context.paintable);
    if (placement.haloWidth > 0 && !outline.isEmpty()) {
        QPainterPath halo = Strokes::outline(outline, { 2 * placement.haloWidth });
        halo.addPath(outline);
        out.fill(halo, placement.haloColor);
    }
    out.fill(outline, placement.color);
    for (const TextShape::Picture &glyph : shape.pictures) {
        const QRectF target = placed.mapRect(glyph.target);
        if (target.intersects(context.paintable))
            out.add(pictureFor(glyph.picture, target, context.grid.scale(), context.paintable, context.glyphBudget));
    }
}

void prepareText(const Annotation &mark, const MarkContext &context, PreparedMark &out)
{
    if (mark.text.trimmed().isEmpty())
        return;
    const TextFace face { mark.fontName, mark.bold ? QFont::Bold : QFont::Normal, mark.italic };
    addText(context.text.shape(mark.text, face),
        { .topLeft = mark.p1, .fontSize = mark.fontSize, .color = ColorHex::toColor(mark.colorHex) }, context, out);
}

} // namespace tessaly
