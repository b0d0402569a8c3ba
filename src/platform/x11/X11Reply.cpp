// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11Reply.h"

namespace tessaly {

PropertyRequest::PropertyRequest(xcb_connection_t *xcb, xcb_window_t window, xcb_atom_t property) :
    m_xcb(xcb),
    m_request()
{
    constexpr uint32_t longestInWords = 16 * 1024;
    m_request = xcb_get_property(xcb, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, longestInWords);
}

PropertyRequest::PropertyRequest(PropertyRequest &&other) noexcept :
    m_xcb(other.m_xcb),
    m_request(other.m_request),
    m_waiting(std::exchange(other.m_waiting, false)),
    m_reply(std::move(other.m_reply))
{
}

PropertyRequest::~PropertyRequest()
{
    if (m_waiting)
        xcb_discard_reply(m_xcb, m_request.sequence);
}

void PropertyRequest::wait()
{
    if (std::exchange(m_waiting, false))
        m_reply.reset(xcb_get_property_reply(m_xcb, m_request, nullptr));
}

QList<quint32> PropertyRequest::numbers()
{
    wait();
    if (!m_reply || m_reply->format != 32)
        return {};
    const auto *values = static_cast<const quint32 *>(xcb_get_property_value(m_reply.get()));
    return QList<quint32>(values, values + m_reply->value_len);
}

quint32 PropertyRequest::number(quint32 absent)
{
    const QList<quint32> values = numbers();
    return values.isEmpty() ? absent : values.first();
}

QByteArray PropertyRequest::bytes()
{
    wait();
    if (!m_reply || m_reply->format != 8)
        return {};
    return QByteArray(
        static_cast<const char *>(xcb_get_property_value(m_reply.get())), xcb_get_property_value_length(m_reply.get()));
}

} // namespace tessaly
