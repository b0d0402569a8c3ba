// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/X11Connection.h"

#include <memory>
#include <xcb/shm.h>

namespace tessaly {

/// Memory that the X server writes pictures into. Making one costs more than a capture, in page faults on both sides,
/// so it is kept from capture to capture.
class SharedSegment {
public:
    /// Null when the server or the system refuses, as a server on another machine does.
    static std::shared_ptr<SharedSegment> create(std::shared_ptr<X11Connection> connection, size_t bytes);
    ~SharedSegment();
    SharedSegment(const SharedSegment &) = delete;
    SharedSegment &operator=(const SharedSegment &) = delete;

    /// Faults the pages in that the server has not used yet; here they are when it is made.
    void touch();

    uchar *memory() const { return m_memory; }
    size_t bytes() const { return m_bytes; }
    xcb_shm_seg_t id() const { return m_id; }

private:
    SharedSegment(std::shared_ptr<X11Connection> connection, uchar *memory, size_t bytes, xcb_shm_seg_t id);

    std::shared_ptr<X11Connection> m_connection;
    uchar *m_memory;
    size_t m_bytes;
    xcb_shm_seg_t m_id;
    bool m_touched = false;
};

} // namespace tessaly
