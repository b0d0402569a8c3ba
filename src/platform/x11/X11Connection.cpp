// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11Connection.h"

#include <QCoreApplication>

#include <bit>
#include <cmath>

namespace tessaly {

Result<std::unique_ptr<X11Connection>> X11Connection::open(const QString &display)
{
    const QByteArray name = display.isEmpty() ? qgetenv("DISPLAY") : display.toLocal8Bit();
    if (name.isEmpty()) {
        return Failure { QCoreApplication::translate(
            "X11Connection", "There is no screen to capture: DISPLAY names no X server.") };
    }
    int defaultScreen = 0;
    xcb_connection_t *xcb = xcb_connect(name.constData(), &defaultScreen);
    if (xcb_connection_has_error(xcb) != 0) {
        xcb_disconnect(xcb);
        return Failure {
            QCoreApplication::translate("X11Connection", "No X server answers at %1.").arg(QString::fromLocal8Bit(name))
        };
    }
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(xcb));
    for (int number = 0; number < defaultScreen && screens.rem > 1; ++number)
        xcb_screen_next(&screens);
    return std::unique_ptr<X11Connection>(new X11Connection(xcb, screens.data, defaultScreen));
}

X11Connection::X11Connection(xcb_connection_t *xcb, xcb_screen_t *screen, int screenNumber) :
    m_xcb(xcb),
    m_screen(screen),
    m_screenNumber(screenNumber)
{
}

X11Connection::~X11Connection() { xcb_disconnect(m_xcb); }

QRect X11Connection::rootPixelRect() const
{
    const XcbReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(m_xcb, xcb_get_geometry(m_xcb, root()), nullptr));
    return geometry ? QRect(0, 0, geometry->width, geometry->height) : QRect();
}

bool X11Connection::PixelLayout::isRgb32() const
{
    return bitsPerPixel == 32 && redMask == 0xff0000 && greenMask == 0xff00 && blueMask == 0xff;
}

X11Connection::PixelLayout X11Connection::rootPixelLayout() const
{
    return pixelLayout(m_screen->root_depth, m_screen->root_visual);
}

X11Connection::PixelLayout X11Connection::pixelLayout(uint8_t depth, xcb_visualid_t visual) const
{
    PixelLayout layout;
    const xcb_setup_t *setup = xcb_get_setup(m_xcb);
    const bool sameOrder
        = (setup->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST) == (std::endian::native == std::endian::little);
    if (!sameOrder)
        return layout;
    for (auto format = xcb_setup_pixmap_formats_iterator(setup); format.rem > 0; xcb_format_next(&format)) {
        if (format.data->depth == depth)
            layout.bitsPerPixel = format.data->bits_per_pixel;
    }
    for (auto allowed = xcb_screen_allowed_depths_iterator(m_screen); allowed.rem > 0; xcb_depth_next(&allowed)) {
        for (auto type = xcb_depth_visuals_iterator(allowed.data); type.rem > 0; xcb_visualtype_next(&type)) {
            if (type.data->visual_id != visual)
                continue;
            layout.redMask = type.data->red_mask;
            layout.greenMask = type.data->green_mask;
            layout.blueMask = type.data->blue_mask;
        }
    }
    return layout;
}

double X11Connection::textDpi() const
{
    double dpi = 0;
    const QByteArray resources = PropertyRequest(m_xcb, root(), XCB_ATOM_RESOURCE_MANAGER).bytes();
    for (const QByteArray &line : resources.split('\n')) {
        if (line.startsWith("Xft.dpi:"))
            dpi = line.mid(8).trimmed().toDouble();
    }
    return std::isfinite(dpi) ? dpi : 0;
}

const X11Atoms &X11Connection::atoms() const
{
    if (!m_atoms)
        m_atoms.emplace(m_xcb);
    return *m_atoms;
}

bool X11Connection::hasExtension(xcb_extension_t &extension) const
{
    const auto *data = xcb_get_extension_data(m_xcb, &extension);
    return data && data->present;
}

XcbReply<xcb_generic_event_t> X11Connection::takeEvent(uint8_t type) const
{
    while (XcbReply<xcb_generic_event_t> event { xcb_poll_for_event(m_xcb) }) {
        if ((event->response_type & 0x7f) == type)
            return event;
    }
    return nullptr;
}

void X11Connection::dropEvents() const
{
    while (XcbReply<xcb_generic_event_t> event { xcb_poll_for_event(m_xcb) }) { }
}

} // namespace tessaly
