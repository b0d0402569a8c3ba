// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/x11/X11Connection.h"

#include <QImage>

/// The pixels of a window or a picture of the server, sent through the connection.
namespace tessaly::DrawablePixels {

enum class Alpha { Ignored, Kept };

/// The rectangle must lie inside the drawable, and inside the screen for a window. In Format_RGB32, or in
/// Format_ARGB32_Premultiplied where alpha is kept. Null when the server refuses or the layout is none of true colour.
QImage read(const X11Connection &connection, xcb_drawable_t drawable, const QRect &pixelRect,
    const X11Connection::PixelLayout &layout, Alpha alpha);

} // namespace tessaly::DrawablePixels
