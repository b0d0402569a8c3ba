// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/CanvasLook.h"

#include "core/Editing/CropGesture.h"
#include "core/Editing/MarkHandles.h"
#include "core/Editing/MarkShape.h"
#include "core/Editing/MarkTraits.h"
#include "core/Editing/PressMeaning.h"

namespace tessaly {

namespace {

PressMeaning hoverMeaning(EditingContext &context, const HoverState &hover, const CanvasAdornments &adornments)
{
    return meaningOf({ .view = *hover.view,
                         .point = context.transform.toImage(*hover.view),
                         .modifiers = hover.modifiers & ~Qt::AltModifier,
                         .handles = adornments.handles,
                         .handleScale = adornments.handleScale },
        context, ForDrag::No);
}

void addSelection(CanvasAdornments &adornments, EditingContext &context, const Gesture *gesture)
{
    const Annotation *selected = context.store.selected();
    if (!selected || (gesture && !gesture->showsHandles()))
        return;
    const QRectF frame = MarkShape::frame(*selected, context.text);
    adornments.handles = MarkHandles::of(*selected, frame, context.transform);
    if (traitsOf(selected->kind).form != MarkForm::Line)
        adornments.outline = frame;
}

void addHovered(CanvasAdornments &adornments, EditingContext &context, const HoverState &hover)
{
    const auto mark = hoverMeaning(context, hover, adornments).mark;
    const auto index = mark && mark != context.store.selectedID() ? context.store.indexOf(*mark) : std::nullopt;
    if (index)
        adornments.hovered = MarkShape::frame(context.store.annotations().at(*index), context.text);
}

CursorShape cropCursor(const EditingContext &context, QPointF view, double handleScale)
{
    const CropGrip grip = cropGripAt(view, context, handleScale);
    if (grip.part == CropGrip::Part::Handle)
        return MarkHandles::cursor(grip.role, std::nullopt);
    return { grip.part == CropGrip::Part::Inside ? CanvasCursor::FourWay : CanvasCursor::Cross };
}

CursorShape handleCursor(const Annotation &mark, const Handle &handle)
{
    const bool keepsRatio = traitsOf(mark.kind).keepsRatio || mark.kind == AnnotationKind::Text;
    return MarkHandles::cursor(handle.role, keepsRatio ? std::optional(mark.rect().size()) : std::nullopt);
}

/// Over the bare canvas.
CanvasCursor toolCursor(Tool tool)
{
    if (tool == Tool::Text)
        return CanvasCursor::Text;
    return traitsMadeBy(tool) ? CanvasCursor::Cross : CanvasCursor::Arrow;
}

} // namespace

CanvasAdornments adornmentsFor(EditingContext &context, const HoverState &hover, const Gesture *gesture)
{
    CanvasAdornments adornments;
    adornments.dragging = gesture;
    adornments.handleScale = context.touch ? 1.7 : 1;
    if (gesture)
        adornments.guides = gesture->guides();
    if (context.store.isCropping()) {
        adornments.crop = context.store.cropRect();
        adornments.handles = MarkHandles::ofBox(*adornments.crop, context.transform);
        return adornments;
    }
    addSelection(adornments, context, gesture);
    if (hover.view && !gesture)
        addHovered(adornments, context, hover);
    return adornments;
}

CursorShape cursorFor(
    EditingContext &context, const HoverState &hover, const Gesture *gesture, const CanvasAdornments &adornments)
{
    if (gesture)
        return gesture->cursor();
    if (!hover.view)
        return { toolCursor(context.store.tool()) };
    if (context.store.isCropping())
        return cropCursor(context, *hover.view, adornments.handleScale);
    const Annotation *selected = context.store.selected();
    const auto handle = MarkHandles::at(adornments.handles, *hover.view, context.transform, adornments.handleScale);
    if (selected && handle)
        return handleCursor(*selected, *handle);
    const PressMeaning meaning = hoverMeaning(context, hover, adornments);
    if (meaning.movesSelected)
        return { CanvasCursor::FourWay };
    // A tool that draws shows where its mark would begin, also over a mark that a click would select.
    const MarkTraits *made = traitsMadeBy(context.store.tool());
    const bool wouldDraw = made && !hover.modifiers.testFlag(Qt::ControlModifier);
    return { meaning.mark && !wouldDraw ? CanvasCursor::PointingHand : toolCursor(context.store.tool()) };
}

} // namespace tessaly
