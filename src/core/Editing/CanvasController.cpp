// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/CanvasController.h"

#include "core/Editing/CanvasLook.h"
#include "core/Editing/CropGesture.h"
#include "core/Editing/MarkHandles.h"
#include "core/Editing/MarkHitTest.h"
#include "core/Editing/MarkReshaping.h"
#include "core/Editing/MarkSteps.h"
#include "core/Editing/MarkTraits.h"
#include "core/Editing/NewMarks.h"
#include "core/Editing/PressMeaning.h"
#include "core/Editing/StepSeries.h"

#include <QScopedValueRollback>

#include <cmath>

namespace tessaly {

class CanvasController::Implementation {
public:
    Implementation(
        CanvasController &controller, AnnotationStore &annotationStore, TextGeometry &text, const Clock &clock) :
        owner(controller),
        context { annotationStore, text },
        store(annotationStore),
        series(annotationStore, clock)
    {
    }

    void track(const PointerInput &input);
    void beginDrag();
    void updateDrag();
    void endDrag(const std::function<void()> &end);
    void click(const PressMeaning &meaning, QPointF at);
    void place(QPointF at);
    void refresh();
    void storeChanged();

    MarkHitTest::Query query(QPointF point) const
    {
        return { store.annotations(), point, context.reach(MarkHitTest::viewTolerance), store.selectedID() };
    }
    std::optional<Handle> handleAt(QPointF position) const
    {
        return MarkHandles::at(adornments.handles, position, context.transform, adornments.handleScale);
    }

    CanvasController &owner;
    EditingContext context;
    AnnotationStore &store;
    StepSeries series;
    CanvasAdornments adornments;
    CursorShape cursor;

    HoverState hover;
    QPointF view; ///< of the pointer at its last event
    bool space = false;
    std::optional<PressPlace> press; ///< the left button is down, and nothing cancelled what it began
    bool hasLeftPlace = false; ///< the pointer went farther than a click may
    std::unique_ptr<Gesture> gesture; ///< once it did
    bool isDragging = false; ///< the store's changes are the gesture's
    double wheelRest = 0; ///< notches that are not whole yet
};

void CanvasController::Implementation::track(const PointerInput &input)
{
    context.touch = input.touch;
    view = input.position;
    hover.view = input.touch ? std::nullopt : std::optional(input.position);
    hover.modifiers = input.modifiers;
    if (!press)
        return;
    constexpr double threshold = 4; // view pixels
    const QPointF way = view - press->view;
    if (!hasLeftPlace && std::hypot(way.x(), way.y()) > threshold * (input.touch ? 1.5 : 1))
        beginDrag();
    updateDrag();
}

void CanvasController::Implementation::beginDrag()
{
    hasLeftPlace = true;
    const QScopedValueRollback dragging(isDragging, true);
    gesture = meaningOf(*press, context, ForDrag::Yes).drag;
    if (gesture)
        gesture->begin();
}

void CanvasController::Implementation::updateDrag()
{
    const QScopedValueRollback dragging(isDragging, true);
    if (gesture)
        gesture->update({ context.transform.toImage(view), hover.modifiers, space });
}

/// Ends what the press began; the gesture, when there is one, first gets its word.
void CanvasController::Implementation::endDrag(const std::function<void()> &end)
{
    const QScopedValueRollback dragging(isDragging, true);
    if (gesture)
        end();
    gesture.reset();
    press.reset();
    hasLeftPlace = false;
}

void CanvasController::Implementation::click(const PressMeaning &meaning, QPointF at)
{
    switch (meaning.click) {
    case ClickMeaning::Nothing:
        return;
    case ClickMeaning::Select:
    case ClickMeaning::EditText:
        if (const auto index = store.indexOf(*meaning.mark))
            context.select(store.annotations().at(*index));
        if (meaning.click == ClickMeaning::EditText)
            Q_EMIT owner.editTextRequested(*meaning.mark, at, false);
        return;
    case ClickMeaning::Deselect:
        return store.setSelectedID(std::nullopt);
    case ClickMeaning::Place:
        return place(at);
    }
}

void CanvasController::Implementation::place(QPointF at)
{
    const MarkTraits *made = traitsMadeBy(store.tool());
    if (!made)
        return;
    if (made->kind == AnnotationKind::ImageOverlay)
        Q_EMIT owner.imageRequested(at);
    const auto mark = placeMark(made->kind, at, context);
    if (mark && made->kind == AnnotationKind::Text)
        Q_EMIT owner.editTextRequested(*mark, at, true);
}

void CanvasController::Implementation::refresh()
{
    CanvasAdornments newAdornments = adornmentsFor(context, hover, gesture.get());
    const CursorShape newCursor = cursorFor(context, hover, gesture.get(), newAdornments);
    const bool adornmentsMoved = newAdornments != adornments, cursorMoved = newCursor != cursor;
    adornments = std::move(newAdornments);
    cursor = newCursor;
    if (adornmentsMoved)
        Q_EMIT owner.adornmentsChanged();
    if (cursorMoved)
        Q_EMIT owner.cursorChanged();
}

void CanvasController::Implementation::storeChanged()
{
    if (isDragging)
        return;
    if (gesture && !store.isCropping() && !store.selected())
        endDrag([this] { gesture->abandon(); });
    refresh();
}

CanvasController::CanvasController(AnnotationStore &store, TextGeometry &text, const Clock &clock, QObject *parent) :
    QObject(parent),
    m_implementation(std::make_unique<Implementation>(*this, store, text, clock))
{
    connect(&store, &AnnotationStore::changed, this, [this] { m_implementation->storeChanged(); });
    m_implementation->refresh();
}

CanvasController::~CanvasController()
{
    disconnect(&m_implementation->store, nullptr, this, nullptr); // an open gesture puts back what was before
}

void CanvasController::setTransform(const CanvasTransform &transform)
{
    m_implementation->context.transform = transform;
    m_implementation->updateDrag();
    m_implementation->refresh();
}

const CanvasTransform &CanvasController::transform() const { return m_implementation->context.transform; }

void CanvasController::press(const PointerInput &input)
{
    auto &mine = *m_implementation;
    if (input.button == Qt::RightButton)
        cancelGesture();
    mine.track(input);
    mine.refresh();
    if (input.button != Qt::LeftButton || mine.press)
        return;
    mine.press = PressPlace { input.position, transform().toImage(input.position), input.modifiers,
        mine.adornments.handles, mine.adornments.handleScale };
}

void CanvasController::move(const PointerInput &input)
{
    m_implementation->track(input);
    m_implementation->refresh();
}

void CanvasController::release(const PointerInput &input)
{
    auto &mine = *m_implementation;
    if (input.button != Qt::LeftButton || !mine.press)
        return;
    mine.track(input);
    if (mine.gesture) {
        mine.endDrag([&] { mine.gesture->finish(); });
        mine.refresh();
        return;
    }
    const PressMeaning meaning = meaningOf(*mine.press, mine.context, ForDrag::No);
    const MarkTraits *made = traitsMadeBy(mine.store.tool());
    const bool wasDragged = mine.hasLeftPlace;
    const QPointF at = mine.press->point;
    mine.endDrag([] {});
    if (!wasDragged)
        mine.click(meaning, at);
    else if (made && made->isPlaced) // a text or a picture begins where the pointer was pressed
        mine.place(at);
    mine.refresh();
}

void CanvasController::doubleClick(const PointerInput &input)
{
    auto &mine = *m_implementation;
    const QPointF point = transform().toImage(input.position);
    const auto handle = mine.handleAt(input.position);
    const Annotation *hit = MarkHitTest::topmost(mine.query(point), mine.context.text);
    if (input.button != Qt::LeftButton || mine.press || input.modifiers.testFlag(Qt::AltModifier)) {
        press(input);
    } else if (mine.store.isCropping() && mine.store.cropRect().contains(point)) {
        applyCrop();
    } else if (handle && handle->role == HandleRole::Bend && mine.store.selected()->curved) {
        mine.store.updateSelection(Undo::Record, [](Annotation &arrow) { arrow = MarkReshaping::straightened(arrow); });
    } else if (hit && !handle && !mine.store.isCropping() && hit->kind == AnnotationKind::Text) {
        const QUuid id = hit->id;
        mine.context.select(*hit);
        Q_EMIT editTextRequested(id, point, false);
    } else {
        press(input);
    }
}

void CanvasController::leave()
{
    m_implementation->hover.view.reset();
    m_implementation->refresh();
}

void CanvasController::setModifiers(Qt::KeyboardModifiers modifiers)
{
    m_implementation->hover.modifiers = modifiers;
    m_implementation->updateDrag();
    m_implementation->refresh();
}

void CanvasController::setSpaceHeld(bool held)
{
    m_implementation->space = held;
    m_implementation->updateDrag();
    m_implementation->refresh();
}

bool CanvasController::wheel(double notches, Qt::KeyboardModifiers modifiers)
{
    auto &mine = *m_implementation;
    if (modifiers.testFlag(Qt::ControlModifier))
        return false; // zooms
    mine.wheelRest += notches;
    const int whole = static_cast<int>(mine.wheelRest);
    mine.wheelRest -= whole;
    if (mine.gesture) {
        const QScopedValueRollback dragging(mine.isDragging, true);
        return mine.gesture->wheel(whole);
    }
    const Annotation *selected = mine.store.selected();
    if (!selected || mine.press || mine.store.isCropping() || !modifiers.testFlag(Qt::AltModifier) || !mine.hover.view
        || !MarkHitTest::hits(*selected, mine.query(transform().toImage(*mine.hover.view)), mine.context.text))
        return false;
    if (whole != 0)
        mine.series.step(StepSeries::Kind::Wheel, [&](const Annotation &mark) { return afterWheel(mark, whole); });
    return true;
}

bool CanvasController::isGestureActive() const { return m_implementation->press.has_value(); }

bool CanvasController::cancelGesture()
{
    if (!isGestureActive())
        return false;
    m_implementation->endDrag([] {});
    m_implementation->refresh();
    return true;
}

bool CanvasController::escape()
{
    AnnotationStore &store = m_implementation->store;
    if (cancelGesture())
        return true;
    if (store.isCropping())
        store.cancelCrop();
    else if (store.selectedID())
        store.setSelectedID(std::nullopt);
    else if (store.tool() != Tool::Select)
        store.activate(Tool::Select);
    else
        return false;
    return true;
}

void CanvasController::nudge(QPoint direction, Qt::KeyboardModifiers modifiers)
{
    auto &mine = *m_implementation;
    if (isGestureActive())
        return;
    const QPointF step = QPointF(direction) * (modifiers.testFlag(Qt::ShiftModifier) ? 10 : 1);
    const bool resizes = modifiers.testFlag(Qt::ControlModifier);
    if (mine.store.isCropping())
        return mine.store.setCropRect(steppedCrop(mine.context, step, resizes));
    mine.series.step(StepSeries::Kind::Key, [&](const Annotation &mark) {
        return resizes ? withFarEdgeMoved(mark, step, mine.context.text) : MarkReshaping::moved(mark, step);
    });
}

void CanvasController::selectNext(bool backwards)
{
    auto &mine = *m_implementation;
    const auto &marks = mine.store.annotations();
    if (isGestureActive() || mine.store.isCropping() || marks.isEmpty())
        return;
    const qsizetype count = marks.size();
    const auto selected = mine.store.selectedID() ? mine.store.indexOf(*mine.store.selectedID()) : std::nullopt;
    const qsizetype present = selected.value_or(backwards ? 0 : -1);
    const qsizetype next = (present + (backwards ? count - 1 : 1)) % count;
    const Annotation mark = marks.at(next);
    mine.context.select(mark);
    //: For a screen reader: a mark's name, its number, how many marks there are
    const QString sentence = tr("%1, %2 of %3").arg(spokenName(mark)).arg(next + 1).arg(count);
    Q_EMIT announced(sentence, MarkShape::visibleBox(mark, mine.context.text));
}

void CanvasController::applyCrop()
{
    AnnotationStore &store = m_implementation->store;
    if (!store.isCropping())
        return;
    if (const Outcome outcome = store.applyCrop(); !outcome)
        Q_EMIT failed(outcome.failure().message);
}

bool CanvasController::snapping() const { return m_implementation->context.snapping; }

void CanvasController::setSnapping(bool on)
{
    m_implementation->context.snapping = on;
    m_implementation->updateDrag();
    m_implementation->refresh();
}

std::optional<QUuid> CanvasController::markAt(QPointF view) const
{
    auto &mine = *m_implementation;
    const Annotation *mark = MarkHitTest::topmost(mine.query(transform().toImage(view)), mine.context.text);
    return mark ? std::optional(mark->id) : std::nullopt;
}

bool CanvasController::meansMark(QPointF view) const { return markAt(view) || m_implementation->handleAt(view); }

QRectF CanvasController::visibleBox(const QUuid &mark) const
{
    auto &mine = *m_implementation;
    const auto index = mine.store.indexOf(mark);
    return index ? MarkShape::visibleBox(mine.store.annotations().at(*index), mine.context.text) : QRectF();
}

CanvasAdornments CanvasController::adornments() const { return m_implementation->adornments; }
CursorShape CanvasController::cursor() const { return m_implementation->cursor; }

} // namespace tessaly
