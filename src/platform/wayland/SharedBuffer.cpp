// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/SharedBuffer.h"

#include <sys/mman.h>
#include <unistd.h>

namespace tessaly {

static size_t byteCount(const SharedBuffer::Layout &layout)
{
    return static_cast<size_t>(layout.bytesPerLine) * static_cast<size_t>(layout.size.height());
}

SharedBuffer::SharedBuffer(
    std::shared_ptr<WaylandConnection> connection, const Layout &layout, uchar *memory, wl_buffer *buffer) :
    m_connection(std::move(connection)),
    m_layout(layout),
    m_memory(memory),
    m_buffer(buffer)
{
}

SharedBuffer::~SharedBuffer()
{
    wl_buffer_destroy(m_buffer);
    m_connection->flush();
    ::munmap(m_memory, byteCount(m_layout));
}

std::shared_ptr<SharedBuffer> SharedBuffer::create(
    std::shared_ptr<WaylandConnection> connection, wl_shm *sharing, const Layout &layout)
{
    // The protocol counts bytes in 32 bits, with a sign.
    const size_t bytes = byteCount(layout);
    if (layout.size.isEmpty() || layout.bytesPerLine <= 0 || bytes > size_t(std::numeric_limits<int32_t>::max()))
        return nullptr;
    const int file = ::memfd_create("tessaly-screen", MFD_CLOEXEC);
    if (file < 0)
        return nullptr;
    void *memory = ::ftruncate(file, static_cast<off_t>(bytes)) == 0
        ? ::mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_SHARED, file, 0)
        : MAP_FAILED;
    if (memory == MAP_FAILED) {
        ::close(file);
        return nullptr;
    }
    wl_shm_pool *pool = wl_shm_create_pool(sharing, file, static_cast<int32_t>(bytes));
    wl_buffer *buffer = wl_shm_pool_create_buffer(
        pool, 0, layout.size.width(), layout.size.height(), layout.bytesPerLine, layout.format);
    wl_shm_pool_destroy(pool);
    ::close(file);
    return std::shared_ptr<SharedBuffer>(
        new SharedBuffer(std::move(connection), layout, static_cast<uchar *>(memory), buffer));
}

} // namespace tessaly
