// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/SegmentPool.h"

namespace tessaly {

SegmentPool::SegmentPool(std::shared_ptr<X11Connection> connection) : m_connection(std::move(connection)) { }

static bool isUnused(const std::shared_ptr<SharedSegment> &segment) { return segment.use_count() == 1; }

std::shared_ptr<SharedSegment> SegmentPool::take(size_t bytes)
{
    std::shared_ptr<SharedSegment> *smallest = nullptr;
    for (auto &segment : m_segments) {
        const bool fits = isUnused(segment) && segment->bytes() >= bytes;
        if (fits && (!smallest || segment->bytes() < (*smallest)->bytes()))
            smallest = &segment;
    }
    if (smallest)
        return *smallest;
    auto made = SharedSegment::create(m_connection, bytes);
    if (!made)
        return nullptr;
    const auto tooSmall = std::find_if(m_segments.begin(), m_segments.end(), isUnused);
    if (tooSmall != m_segments.end())
        *tooSmall = made;
    else
        m_segments.push_back(made);
    return made;
}

void SegmentPool::prepare(const std::vector<size_t> &sizes)
{
    std::vector<std::shared_ptr<SharedSegment>> taken;
    for (const size_t bytes : sizes) {
        if (auto segment = take(bytes))
            taken.push_back(std::move(segment));
    }
    for (const auto &segment : taken)
        segment->touch();
}

} // namespace tessaly
