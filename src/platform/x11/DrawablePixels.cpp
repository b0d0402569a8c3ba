// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/x11/DrawablePixels.h"

#include "platform/x11/PixelConversion.h"

namespace tessaly::DrawablePixels {

QImage read(const X11Connection &connection, xcb_drawable_t drawable, const QRect &pixelRect,
    const X11Connection::PixelLayout &layout, Alpha alpha)
{
    xcb_connection_t *xcb = connection.xcb();
    const auto request = xcb_get_image(xcb, XCB_IMAGE_FORMAT_Z_PIXMAP, drawable, static_cast<int16_t>(pixelRect.x()),
        static_cast<int16_t>(pixelRect.y()), static_cast<uint16_t>(pixelRect.width()),
        static_cast<uint16_t>(pixelRect.height()), ~0u);
    XcbReply<xcb_get_image_reply_t> reply(xcb_get_image_reply(xcb, request, nullptr));
    if (!reply)
        return {};
    uchar *bytes = xcb_get_image_data(reply.get());
    const qsizetype bytesPerLine = xcb_get_image_data_length(reply.get()) / pixelRect.height();
    if (!layout.isRgb32())
        return PixelConversion::toRgb32(bytes, bytesPerLine, pixelRect.size(), layout);
    const size_t pixelCount = static_cast<size_t>(bytesPerLine / 4 * pixelRect.height());
    if (alpha == Alpha::Kept)
        PixelConversion::limitToAlpha(bytes, pixelCount);
    else
        PixelConversion::makeOpaque(bytes, pixelCount);
    const auto format = alpha == Alpha::Kept ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32;
    return QImage(bytes, pixelRect.width(), pixelRect.height(), bytesPerLine, format, std::free, reply.release());
}

} // namespace tessaly::DrawablePixels
