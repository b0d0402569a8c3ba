// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/SharedSegment.h"

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

SharedSegment::~SharedSegment()
{
    xcb_shm_detach(m_connection->xcb(), m_id);
    xcb_flush(m_connection->xcb());
    ::shmdt(m_memory);
}

} // namespace tessaly
