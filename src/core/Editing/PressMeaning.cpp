// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/PressMeaning.h"

#include "core/Editing/CreateGestures.h"
#include "core/Editing/CropGesture.h"
#include "core/Editing/MarkHandles.h"
#include "core/Editing/MarkHitTest.h"
#include "core/Editing/MarkTraits.h"
#include "core/Editing/MoveGesture.h"
#include "core/Editing/ReshapeGestures.h"

namespace tessaly {

namespace {

/// What lies at the place of a press.
struct Situation {
    const PressPlace &place;
    EditingContext &context;
    MarkHitTest::Query query;
    const Annotation *hit; ///< the top-most mark
    const Annotation *selected;
    const MarkTraits *made; ///< by the tool; null for one that selects

    Situation(const PressPlace &pressPlace, EditingContext &editing) :
        place(pressPlace),
        context(editing),
        query { editing.store.annotations(), pressPlace.point, editing.reach(MarkHitTest::viewTolerance),
            editing.store.selectedID() },
        hit(MarkHitTest::topmost(query, editing.text)),
        selected(editing.store.selected()),
        made(traitsMadeBy(editing.store.tool()))
    {
        // Ctrl over a mark selects with any tool.
        if (hit && place.has(Qt::ControlModifier))
            made = nullptr;
    }

    /// A press on the selected mark takes hold of it, also where another mark's edge is near.
    bool holdsSelected() const
    {
        return selected
            && (hit == selected || MarkShape::distance(*selected, query.point, context.text) <= query.tolerance);
    }

    /// A tool that makes marks by clicks makes them on other marks, too, but not on one of their own kind.
    bool selectsHit() const { return hit && (!made || !made->isPlaced || hit->kind == made->kind || hit == selected); }

    bool editsHit() const
    {
        return made && made->kind == AnnotationKind::Text && hit && hit->kind == AnnotationKind::Text;
    }
};

void setClick(PressMeaning &meaning, const Situation &situation)
{
    if (situation.hit && situation.place.has(Qt::AltModifier)) {
        meaning.click = ClickMeaning::Select;
        meaning.mark = MarkHitTest::nextBelow(situation.query, situation.context.text)->id;
    } else if (situation.selectsHit()) {
        meaning.click = situation.editsHit() ? ClickMeaning::EditText : ClickMeaning::Select;
        meaning.mark = situation.hit->id;
    } else {
        const bool places = situation.made && situation.made->isPlaced;
        meaning.click = places ? ClickMeaning::Place : ClickMeaning::Deselect;
    }
}

std::unique_ptr<Gesture> dragOf(const Situation &situation)
{
    const Annotation *mark = situation.holdsSelected() ? situation.selected : situation.made ? nullptr : situation.hit;
    if (mark)
        return std::make_unique<MoveGesture>(situation.context, *mark, situation.place.point);
    if (situation.made)
        return createGesture(situation.context, situation.made->kind, situation.place.point);
    return nullptr;
}

} // namespace

PressMeaning meaningOf(const PressPlace &place, EditingContext &context, ForDrag forDrag)
{
    PressMeaning meaning;
    if (context.store.isCropping()) {
        if (forDrag == ForDrag::Yes)
            meaning.drag = std::make_unique<CropGesture>(
                context, cropGripAt(place.view, context, place.handleScale), place.point);
        return meaning;
    }
    if (const auto handle = MarkHandles::at(place.handles, place.view, context.transform, place.handleScale)) {
        if (forDrag == ForDrag::Yes)
            meaning.drag = handleGesture(context, *context.store.selected(), *handle, place.point);
        return meaning;
    }
    const Situation situation(place, context);
    setClick(meaning, situation);
    meaning.movesSelected = situation.holdsSelected();
    if (forDrag == ForDrag::Yes)
        meaning.drag = dragOf(situation);
    return meaning;
}

} // namespace tessaly
