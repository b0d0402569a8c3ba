// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/SharedSegment.h"

#include "core/Base/Parallel.h"
#include "core/Imaging/PixelMemory.h"

#include <sys/ipc.h>
#include <sys/shm.h>

namespace tessaly {

std::shared_ptr<SharedSegment> SharedSegment::create(std::shared_ptr<X11Connection> connection, size_t bytes)
{
    const int segment = ::shmget(IPC_PRIVATE, bytes, IPC_CREAT | 0600);
    if (segment < 0)
        return nullptr;
    void *memory = ::shmat(segment, nullptr, 0);
    const xcb_shm_seg_t id = xcb_generate_id(connection->xcb());
    const XcbReply<xcb_generic_error_t> refusal(xcb_request_check(
        connection->xcb(), xcb_shm_attach_checked(connection->xcb(), id, static_cast<uint32_t>(segment), 0)));
    // Marked now, it goes away with its last user, even if this program is killed.
    ::shmctl(segment, IPC_RMID, nullptr);
    if (memory == reinterpret_cast<void *>(-1))
        return nullptr;
    if (refusal) {
        ::shmdt(memory);
        return nullptr;
    }
    PixelMemory::populate(static_cast<uchar *>(memory), bytes, Parallel::defaultThreadCount());
    return std::shared_ptr<SharedSegment>(
        new SharedSegment(std::move(connection), static_cast<uchar *>(memory), bytes, id));
}

SharedSegment::SharedSegment(std::shared_ptr<X11Connection> connection, uchar *memory, size_t bytes, xcb_shm_seg_t id) :
    m_connection(std::move(connection)),
    m_memory(memory),
    m_bytes(bytes),
    m_id(id)
{
}

void SharedSegment::touch()
{
    if (std::exchange(m_touched, true))
        return;
    // The server touches a page when it writes to it: the screen's pixels, as often as they fit.
    const QRect screen = m_connection->rootPixelRect();
    const size_t bytesPerRow = static_cast<size_t>(screen.width()) * 4;
    const size_t rowsAtOnce = std::min(bytesPerRow ? m_bytes / bytesPerRow : 0, static_cast<size_t>(screen.height()));
    if (rowsAtOnce == 0)
        return;
    for (size_t row = 0; (row + rowsAtOnce) * bytesPerRow <= m_bytes; row += rowsAtOnce) {
        const auto request = xcb_shm_get_image(m_connection->xcb(), m_connection->root(), 0, 0,
            static_cast<uint16_t>(screen.width()), static_cast<uint16_t>(rowsAtOnce), ~0u, XCB_IMAGE_FORMAT_Z_PIXMAP,
            m_id, static_cast<uint32_t>(row * bytesPerRow));
        const XcbReply<xcb_shm_get_image_reply_t> written(
            xcb_shm_get_image_reply(m_connection->xcb(), request, nullptr));
    }
}

SharedSegment::~SharedSegment()
{
    xcb_shm_detach(m_connection->xcb(), m_id);
    xcb_flush(m_connection->xcb());
    ::shmdt(m_memory);
}

} // namespace tessaly
