// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/MarkCommands.h"

#include "core/Annotation/AnnotationStore.h"
#include "core/Editing/MarkReshaping.h"
#include "core/Editing/MarkTraits.h"
#include "core/Editing/NewMarks.h"

namespace tessaly {

namespace {

qsizetype placeAfter(Order order, qsizetype place, qsizetype last)
{
    switch (order) {
    case Order::Forward:
        return std::min(place + 1, last);
    case Order::Backward:
        return std::max<qsizetype>(place - 1, 0);
    case Order::ToFront:
        return last;
    case Order::ToBack:
        break;
    }
    return 0;
}

/// Restyles the selected mark by those fields of `style` that belong to its kind; no step when it looks so already.
void restyle(AnnotationStore &store, const ToolStyle &style)
{
    const Annotation *selected = store.selected();
    if (!selected)
        return;
    Annotation restyled = *selected;
    style.applyTo(restyled);
    if (restyled.kind == AnnotationKind::Sticker)
        restyled.text = selected->text; // which sticker it is belongs to the mark
    const bool becomesNumber = restyled.kind == AnnotationKind::Stamp && restyled.stamp == StampKind::Number
        && selected->stamp != StampKind::Number;
    if (restyled == *selected)
        return;
    store.beginChange();
    if (becomesNumber) {
        restyled.text = QString::number(store.nextStampNumber());
        store.setNextStampNumber(store.nextStampNumber() + 1);
    }
    store.updateSelection(Undo::Skip, [&](Annotation &mark) { mark = restyled; });
}

} // namespace

Tool toolOf(AnnotationKind kind) { return traitsOf(kind).tool; }

MarkCommands::MarkCommands(AnnotationStore &store, SavedStyles &styles, CopiedStyle &copiedStyle) :
    m_store(store),
    m_styles(styles),
    m_copiedStyle(copiedStyle)
{
}

bool MarkCommands::canActOnSelection() const { return m_store.selected(); }

void MarkCommands::duplicate()
{
    const Annotation *selected = m_store.selected();
    if (!selected)
        return;
    QPointF offset(10, 10);
    const auto original = m_original ? m_store.indexOf(*m_original) : std::nullopt;
    if (original && m_duplicate == selected->id)
        offset = selected->p1 - m_store.annotations().at(*original).p1;
    const Annotation source = *selected;
    m_store.beginChange();
    const Annotation copy = MarkReshaping::moved(copyOf(source, m_store), offset);
    m_store.append(copy);
    m_store.setSelectedID(copy.id);
    m_original = source.id;
    m_duplicate = copy.id;
}

void MarkCommands::reorder(Order order)
{
    const auto place = m_store.selectedID() ? m_store.indexOf(*m_store.selectedID()) : std::nullopt;
    if (!place)
        return;
    QList<Annotation> marks = m_store.annotations();
    const qsizetype target = placeAfter(order, *place, marks.size() - 1);
    if (target == *place)
        return;
    marks.move(*place, target);
    m_store.beginChange();
    m_store.setAnnotations(std::move(marks));
}

void MarkCommands::copyStyle()
{
    if (const Annotation *selected = m_store.selected())
        m_copiedStyle.mark = *selected;
}

bool MarkCommands::canPasteStyle() const { return m_copiedStyle.mark && m_store.selected(); }

void MarkCommands::pasteStyle()
{
    if (!canPasteStyle())
        return;
    ToolStyle style;
    style.adopt(*m_store.selected());
    style.adopt(*m_copiedStyle.mark);
    restyle(m_store, style);
    m_store.adoptStyle(*m_store.selected());
}

void MarkCommands::applyPaletteColor(int number)
{
    if (number < 1 || number > static_cast<int>(paletteColors.size()))
        return;
    const QString color = QLatin1StringView(paletteColors.at(number - 1));
    ToolStyle style = m_store.toolStyle();
    style.colorHex = color;
    m_store.setToolStyle(style);
    if (const Annotation *selected = m_store.selected()) {
        ToolStyle own;
        own.adopt(*selected);
        own.colorHex = color;
        restyle(m_store, own);
    }
}

void MarkCommands::applySavedStyle(int number)
{
    const Annotation *selected = m_store.selected();
    const Tool tool = selected ? toolOf(selected->kind) : m_store.tool();
    const QList<SavedStyle> styles = m_styles.styles(tool);
    if (number >= 1 && number <= styles.size())
        apply(styles.at(number - 1), tool, m_store);
}

} // namespace tessaly
