// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/X11Connection.h"

#include <QCoreApplication>

#include <bit>
#include <xcb/shm.h>

namespace tessaly {

Result<std::unique_ptr<X11Connection>> X11Connection::open(const QString &display)
{
    const QByteArray name = display.isEmpty() ? qgetenv("DISPLAY") : display.toLocal8Bit();
    if (name.isEmpty()) {
        return Failure { QCoreApplication::translate(
            "X11Connection", "There is no screen to capture: DISPLAY names no X server.") };
    }
    int screenNumber = 0;
    xcb_connection_t *xcb = xcb_connect(name.constData(), &screenNumber);
    if (xcb_connection_has_error(xcb) != 0) {
        xcb_disconnect(xcb);
        return Failure {
            QCoreApplication::translate("X11Connection", "No X server answers at %1.").arg(QString::fromLocal8Bit(name))
        };
    }
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(xcb));
    for (; screenNumber > 0 && screens.rem > 1; --screenNumber)
        xcb_screen_next(&screens);
    return std::unique_ptr<X11Connection>(new X11Connection(xcb, screens.data));
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
    PixelLayout layout;
    const xcb_setup_t *setup = xcb_get_setup(m_xcb);
    for (auto format = xcb_setup_pixmap_formats_iterator(setup); format.rem > 0; xcb_format_next(&format)) {
        if (format.data->depth == m_screen->root_depth)
            layout.bitsPerPixel = format.data->bits_per_pixel;
    }
    for (auto depth = xcb_screen_allowed_depths_iterator(m_screen); depth.rem > 0; xcb_depth_next(&depth)) {
        for (auto visual = xcb_depth_visuals_iterator(depth.data); visual.rem > 0; xcb_visualtype_next(&visual)) {
            if (visual.data->visual_id != m_screen->root_visual)
                continue;
            layout.redMask = visual.data->red_mask;
            layout.greenMask = visual.data->green_mask;
            layout.blueMask = visual.data->blue_mask;
        }
    }
    const bool sameOrder
        = (setup->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST) == (std::endian::native == std::endian::little);
    if (!sameOrder)
        layout.bitsPerPixel = 0;
    return layout;
}

double X11Connection::scale() const
{
    constexpr uint32_t longestInWords = 16 * 1024;
    const XcbReply<xcb_get_property_reply_t> resources(xcb_get_property_reply(m_xcb,
        xcb_get_property(m_xcb, 0, root(), XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING, 0, longestInWords), nullptr));
    if (!resources)
        return 1;
    const QByteArray text(static_cast<const char *>(xcb_get_property_value(resources.get())),
        xcb_get_property_value_length(resources.get()));
    for (const QByteArray &line : text.split('\n')) {
        if (line.startsWith("Xft.dpi:"))
            return std::clamp(std::round(line.mid(8).trimmed().toDouble() / 96 * 4) / 4, 1.0, 4.0);
    }
    return 1;
}

bool X11Connection::hasSharedMemory() const
{
    const auto *extension = xcb_get_extension_data(m_xcb, &xcb_shm_id);
    return extension && extension->present;
}

} // namespace tessaly
