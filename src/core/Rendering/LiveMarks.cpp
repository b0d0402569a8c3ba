// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/LiveMarks.h"

#include "core/Annotation/MarkLimits.h"
#include "core/Rendering/MarkReach.h"
#include "core/Rendering/ObscurePainter.h"

#include <algorithm>

namespace tessaly {

/// A mark of the list, as it was when it was last looked at.
struct LiveMarks::Entry {
    Annotation stored; ///< a copy: sharing the list would make every change of it copy all
    bool isEdited = false; ///< its text is drawn elsewhere
    bool isDrawable = false;
    DrawnMark drawn = {};
    std::optional<CaptureSample::HiddenArea> hidden = {};
    QRegion reach = {}; ///< the pixels that it can touch
    bool isStale = true; ///< to be prepared

    AnnotationKind kind() const { return drawn.mark.kind; }
    bool isShown() const { return isDrawable && !isEdited; }
    bool isListed() const { return isShown() && kind() != AnnotationKind::Spotlight; }
    bool isLoupe() const { return kind() == AnnotationKind::Magnifier; }
};

namespace {

bool isSame(const CaptureSample::HiddenArea &one, const CaptureSample::HiddenArea &other)
{
    return one.area == other.area && one.color == other.color;
}

double darkness(const QList<Annotation> &spotlights)
{
    double most = 0;
    for (const Annotation &mark : spotlights)
        most = std::max(most, mark.spotDim);
    return most;
}

/// Calls `each` for the elements of both lists between what they begin and what they end with alike.
template <class List, class Same, class Each>
void forDifferent(const List &one, const List &other, Same same, Each each)
{
    auto first = one.begin(), last = one.end();
    auto otherFirst = other.begin(), otherLast = other.end();
    while (first != last && otherFirst != otherLast && same(*first, *otherFirst))
        ++first, ++otherFirst;
    while (first != last && otherFirst != otherLast && same(*(last - 1), *(otherLast - 1)))
        --last, --otherLast;
    std::for_each(first, last, each);
    std::for_each(otherFirst, otherLast, each);
}

} // namespace

void LiveMarks::start(const MarkPreparation::Setup &setup, const RasterImage &source)
{
    *this = LiveMarks();
    m_setup = setup;
    m_source = source;
    m_preparation = std::make_shared<MarkPreparation>(setup, CaptureSample(source, setup.canvas.size(), m_hidden));
}

QRect LiveMarks::touched(const QRectF &points) const
{
    return m_setup.grid.touchedPixels(points).adjusted(-1, -1, 1, 1).intersected(m_setup.pixels);
}

QRegion LiveMarks::update(const QList<Annotation> &annotations, const std::optional<QUuid> &editingID)
{
    std::vector<const Annotation *> before;
    before.reserve(m_entries.size());
    for (const auto &entry : m_entries)
        before.push_back(&entry->stored);
    const MarkListDifference difference(before, annotations);
    if (editingID == m_editingID && difference.isNone())
        return {};
    m_editingID = editingID;
    m_firstChanged = size_t(annotations.size());
    renew(difference, annotations);
    updateHidden();
    updateSpotlights();
    prepareAllButLoupes();
    prepareLoupes();
    m_stale.clear();
    m_changes.clear();
    m_newlyHidden.clear();
    return std::exchange(m_dirty, {});
}

std::shared_ptr<LiveMarks::Entry> LiveMarks::made(const Annotation &stored, bool edited) const
{
    auto entry = std::make_shared<Entry>();
    entry->stored = stored;
    entry->isEdited = edited;
    const auto drawable = MarkLimits::drawable(stored);
    if (!drawable)
        return entry;
    entry->isDrawable = true;
    entry->drawn.mark = *drawable;
    if (const auto color = hidingColor(*drawable)) // stays hidden while it is being edited
        entry->hidden = { m_setup.grid.grownToPixels(drawable->rect()), *color };
    return entry;
}

/// Notes what is to be painted again because this mark is, or was, there.
void LiveMarks::record(const Entry &entry, size_t index)
{
    m_dirty += entry.reach;
    m_firstChanged = std::min(m_firstChanged, index);
    if (entry.isListed() && !entry.isLoupe() && !entry.drawn.prepared.steps.empty())
        m_changes.push_back({ entry.drawn.prepared.bounds, entry.hidden ? 0 : index });
}

/// Notes what else must be looked at because this mark came, went or changed.
void LiveMarks::note(const Entry &entry)
{
    m_hidingChanged |= entry.hidden.has_value();
    m_spotlightsChanged |= entry.isDrawable && entry.kind() == AnnotationKind::Spotlight;
}

void LiveMarks::renew(const MarkListDifference &difference, const QList<Annotation> &annotations)
{
    Entries entries(size_t(annotations.size()));
    m_hidingChanged = m_spotlightsChanged = false;
    m_loupes.clear();
    for (const size_t index : difference.removed) {
        record(*m_entries[index], 0);
        note(*m_entries[index]);
    }
    for (size_t index = 0; index < difference.origins.size(); ++index) {
        const Annotation &stored = annotations[qsizetype(index)];
        const bool edited = m_editingID == stored.id;
        const MarkListDifference::Origin &origin = difference.origins[index];
        std::shared_ptr<Entry> old;
        if (origin.index != MarkListDifference::none)
            old = std::move(m_entries[origin.index]);
        const bool kept = old && origin.isSame && old->isEdited == edited;
        if (old && (!kept || origin.moved)) {
            record(*old, origin.moved ? 0 : index);
            note(*old);
        }
        if (kept && origin.moved && old->isLoupe())
            old->isStale = true;
        entries[index] = kept ? std::move(old) : made(stored, edited);
        const Entry &entry = *entries[index];
        if (!kept)
            note(entry);
        if (entry.isListed() && entry.isLoupe())
            m_loupes.push_back(index);
        else if (entry.isListed() && entry.isStale)
            m_stale.push_back(index);
    }
    m_entries = std::move(entries);
}

/// What samples the capture must look again where something began or ceased to be hidden.
void LiveMarks::updateHidden()
{
    if (!m_hidingChanged)
        return;
    std::vector<CaptureSample::HiddenArea> hidden;
    for (const auto &entry : m_entries) {
        if (entry->hidden)
            hidden.push_back(*entry->hidden);
    }
    forDifferent(m_hidden, hidden, isSame, [this](const auto &one) { m_newlyHidden.push_back(one.area); });
    if (m_newlyHidden.empty())
        return;
    m_hidden = std::move(hidden);
    m_preparation->setSample(CaptureSample(m_source, m_setup.canvas.size(), m_hidden));
    for (size_t index = 0; index < m_entries.size(); ++index) {
        Entry &entry = *m_entries[index];
        if (entry.kind() != AnnotationKind::Pixelate || entry.hidden || entry.isStale || !entry.isListed())
            continue;
        const QRect sampled = touched(entry.drawn.mark.rect());
        const bool affected = std::any_of(m_newlyHidden.begin(), m_newlyHidden.end(),
            [&](const QRectF &area) { return touched(area).intersects(sampled); });
        if (affected) {
            record(entry, index);
            entry.isStale = true;
            m_stale.push_back(index);
        }
    }
    std::ranges::sort(m_stale);
}

void LiveMarks::updateSpotlights()
{
    if (!m_spotlightsChanged)
        return;
    QList<Annotation> spotlights;
    for (const auto &entry : m_entries) {
        if (entry->isShown() && entry->kind() == AnnotationKind::Spotlight)
            spotlights += entry->drawn.mark;
    }
    QRegion holes;
    forDifferent(
        m_spotlightMarks, spotlights, isSameMark, [&](const Annotation &mark) { holes += touched(mark.rect()); });
    const bool isOther
        = spotlights.isEmpty() != m_spotlightMarks.isEmpty() || darkness(spotlights) != darkness(m_spotlightMarks);
    if (holes.isEmpty() && !isOther && spotlights.size() == m_spotlightMarks.size())
        return;
    m_firstChanged = 0;
    m_dirty += isOther ? QRegion(m_setup.pixels) : holes;
    m_spotlights = m_preparation->spotlights(spotlights);
    m_spotlightMarks = spotlights;
}

bool LiveMarks::isOutdated(const Entry &loupe, size_t index) const
{
    if (m_changes.empty() && m_newlyHidden.empty())
        return false;
    const QRectF seen = m_preparation->seenBy(loupe.drawn.mark);
    const QRect sampled = touched(seen).adjusted(-4, -4, 4, 4); // interpolation looks beyond the edge
    return std::any_of(m_changes.begin(), m_changes.end(),
               [&](const Change &change) { return change.index <= index && change.bounds.intersects(seen); })
        || std::any_of(m_newlyHidden.begin(), m_newlyHidden.end(),
            [&](const QRectF &area) { return touched(area).intersects(sampled); });
}

void LiveMarks::prepareAllButLoupes()
{
    if (m_stale.empty())
        return;
    std::vector<DrawnMark *> stale;
    std::vector<size_t> indices;
    for (const size_t index : m_stale) {
        indices.push_back(stale.size());
        stale.push_back(&m_entries[index]->drawn);
    }
    m_preparation->prepare(stale, indices);
    finish(m_stale);
}

/// After all others, which they may show.
void LiveMarks::prepareLoupes()
{
    std::vector<size_t> due;
    for (const size_t index : m_loupes) {
        Entry &loupe = *m_entries[index];
        if (!loupe.isStale && isOutdated(loupe, index)) {
            record(loupe, index);
            loupe.isStale = true;
        }
        if (loupe.isStale)
            due.push_back(index);
    }
    if (due.empty())
        return;
    std::vector<DrawnMark *> all;
    std::vector<size_t> indices;
    auto next = due.begin();
    for (size_t index = 0; index < m_entries.size(); ++index) {
        if (!m_entries[index]->isListed())
            continue;
        if (next != due.end() && *next == index) {
            indices.push_back(all.size());
            ++next;
        }
        all.push_back(&m_entries[index]->drawn);
    }
    m_preparation->prepare(all, indices);
    finish(due);
}

void LiveMarks::finish(const std::vector<size_t> &prepared)
{
    for (const size_t index : prepared) {
        Entry &entry = *m_entries[index];
        entry.isStale = false;
        entry.reach = reachOf(entry.drawn.prepared, m_setup.grid, m_setup.pixels);
        record(entry, index);
    }
}

void LiveMarks::paint(QImage &image, const QRect &clip, QPoint origin, size_t first, size_t end) const
{
    const PixelTarget target { image, clip, m_setup.grid, true, origin };
    if (first == 0)
        tessaly::paint(m_spotlights, target);
    for (size_t index = first; index < end; ++index) {
        const Entry &entry = *m_entries[index];
        if (entry.isListed() && entry.reach.boundingRect().intersects(clip) && entry.reach.intersects(clip))
            tessaly::paint(entry.drawn.prepared, target);
    }
}

} // namespace tessaly
