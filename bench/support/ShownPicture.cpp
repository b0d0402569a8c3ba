// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/support/ShownPicture.h"

#include "platform/x11/X11Connection.h"
#include "platform/x11/X11Reply.h"

namespace tessaly::bench {

ShownPicture::ShownPicture(std::unique_ptr<X11Connection> connection) : m_connection(std::move(connection)) { }
ShownPicture::~ShownPicture() = default;

std::unique_ptr<ShownPicture> ShownPicture::show(const QString &display, const QImage &picture)
{
    auto opened = X11Connection::open(display);
    if (!opened)
        return nullptr;
    xcb_connection_t *xcb = (*opened)->xcb();
    const xcb_window_t root = (*opened)->root();
    const xcb_pixmap_t pixmap = xcb_generate_id(xcb);
    xcb_create_pixmap(xcb, 24, pixmap, root, uint16_t(picture.width()), uint16_t(picture.height()));
    const xcb_gcontext_t context = xcb_generate_id(xcb);
    xcb_create_gc(xcb, context, pixmap, 0, nullptr);
    constexpr int strip = 60; // fits one request
    for (int y = 0; y < picture.height(); y += strip) {
        const int rows = std::min(strip, picture.height() - y);
        xcb_put_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, pixmap, context, uint16_t(picture.width()), uint16_t(rows), 0,
            int16_t(y), 0, 24, uint32_t(picture.bytesPerLine() * rows), picture.constScanLine(y));
    }
    xcb_change_window_attributes(xcb, root, XCB_CW_BACK_PIXMAP, &pixmap);
    xcb_clear_area(xcb, 0, root, 0, 0, 0, 0);
    const XcbReply<xcb_get_input_focus_reply_t> drawn(
        xcb_get_input_focus_reply(xcb, xcb_get_input_focus(xcb), nullptr));
    return drawn ? std::unique_ptr<ShownPicture>(new ShownPicture(std::move(*opened))) : nullptr;
}

QRgb ShownPicture::pixelAt(QPoint pixel) const
{
    xcb_connection_t *xcb = m_connection->xcb();
    const XcbReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(xcb,
        xcb_get_image(
            xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, m_connection->root(), int16_t(pixel.x()), int16_t(pixel.y()), 1, 1, ~0U),
        nullptr));
    return reply ? *reinterpret_cast<const QRgb *>(xcb_get_image_data(reply.get())) & 0xffffffU : 0;
}

} // namespace tessaly::bench
