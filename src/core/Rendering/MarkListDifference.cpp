// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Rendering/MarkListDifference.h"

#include <QHash>

#include <algorithm>

namespace tessaly {

namespace {

using Origin = MarkListDifference::Origin;
constexpr size_t none = MarkListDifference::none;

/// Marks as moved all but a longest run of marks that kept their order.
void findMoved(std::vector<Origin> &origins)
{
    std::vector<size_t> ends; // ends[n]: the mark with the least old index that a run of n + 1 marks can end with
    std::vector<size_t> before(origins.size(), none);
    for (size_t mark = 0; mark < origins.size(); ++mark) {
        if (origins[mark].index == none)
            continue;
        origins[mark].moved = true;
        const auto place = std::partition_point(
            ends.begin(), ends.end(), [&](size_t end) { return origins[end].index < origins[mark].index; });
        before[mark] = place == ends.begin() ? none : *(place - 1);
        if (place == ends.end())
            ends.push_back(mark);
        else
            *place = mark;
    }
    for (size_t mark = ends.empty() ? none : ends.back(); mark != none; mark = before[mark])
        origins[mark].moved = false;
}

} // namespace

bool isSameMark(const Annotation &one, const Annotation &other)
{
    const bool shared = one.imageData && other.imageData && one.imageData->constData() == other.imageData->constData()
        && one.imageData->size() == other.imageData->size();
    if (!shared)
        return one == other;
    Annotation withoutBytes = one, otherWithoutBytes = other;
    withoutBytes.imageData.reset();
    otherWithoutBytes.imageData.reset();
    return withoutBytes == otherWithoutBytes;
}

MarkListDifference::MarkListDifference(const std::vector<const Annotation *> &before, const QList<Annotation> &after) :
    origins(size_t(after.size()))
{
    const auto pair = [&](size_t old, size_t mark) {
        origins[mark] = { old, isSameMark(*before[old], after[qsizetype(mark)]) };
    };
    // Nearly always only the end of the list came or went.
    const size_t oldCount = before.size(), newCount = origins.size();
    size_t alike = 0;
    while (alike < std::min(oldCount, newCount) && before[alike]->id == after[qsizetype(alike)].id) {
        pair(alike, alike);
        ++alike;
    }
    if (alike == oldCount)
        return;
    QHash<QUuid, std::vector<size_t>> known; // the old indices, the first last
    for (size_t old = oldCount; old-- > alike;)
        known[before[old]->id].push_back(old);
    for (size_t mark = alike; mark < newCount; ++mark) {
        const auto found = known.find(after[qsizetype(mark)].id);
        if (found == known.end() || found->empty())
            continue;
        pair(found->back(), mark);
        found->pop_back();
    }
    for (const auto &left : std::as_const(known))
        removed.insert(removed.end(), left.begin(), left.end());
    findMoved(origins);
}

} // namespace tessaly
