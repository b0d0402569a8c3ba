// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/wayland/WaylandConnection.h"

#include <QSize>

namespace tessaly {

/// Memory that the compositor fills with pixels. Its first use costs more in page faults than ten captures: it is kept.
class SharedBuffer {
public:
    struct Layout {
        uint32_t format = 0; ///< of wl_shm
        QSize size;
        int bytesPerLine = 0;

        bool operator==(const Layout &) const = default;
    };

    /// Null when the memory is refused.
    static std::shared_ptr<SharedBuffer> create(
        std::shared_ptr<WaylandConnection> connection, wl_shm *sharing, const Layout &layout);
    ~SharedBuffer();
    SharedBuffer(const SharedBuffer &) = delete;
    SharedBuffer &operator=(const SharedBuffer &) = delete;

    const Layout &layout() const { return m_layout; }
    uchar *memory() const { return m_memory; }
    wl_buffer *buffer() const { return m_buffer; }

private:
    SharedBuffer(std::shared_ptr<WaylandConnection> connection, const Layout &layout, uchar *memory, wl_buffer *buffer);

    std::shared_ptr<WaylandConnection> m_connection; ///< it outlives the buffer
    Layout m_layout;
    uchar *m_memory;
    wl_buffer *m_buffer;
};

} // namespace tessaly
