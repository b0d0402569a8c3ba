// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/SharedSegment.h"

#include <vector>

namespace tessaly {

/// The shared memory that is kept from capture to capture: as many pieces as pictures were ever alive at once.
class SegmentPool {
public:
    explicit SegmentPool(std::shared_ptr<X11Connection> connection);

    /// A piece of at least that size that no picture lies in. A new one takes the place of an unused one that is too
    /// small. Null when shared memory is refused.
    std::shared_ptr<SharedSegment> take(size_t bytes);

    /// Makes one piece for each of the sizes, all at once to be had, and has both sides touch their pages.
    void prepare(const std::vector<size_t> &sizes);

    bool isEmpty() const { return m_segments.empty(); }

    /// Gives back what no picture lies in, now; the rest goes with its picture.
    void release() { m_segments.clear(); }

private:
    std::shared_ptr<X11Connection> m_connection;
    std::vector<std::shared_ptr<SharedSegment>> m_segments;
};

} // namespace tessaly
