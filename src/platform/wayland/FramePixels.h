// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/wayland/SharedBuffer.h"

#include <QImage>

/// Pixels as a compositor hands them out, as upright opaque pictures.
namespace tessaly::FramePixels {

/// How the compositor's picture lies in the memory.
struct Orientation {
    int32_t transform = WL_OUTPUT_TRANSFORM_NORMAL; ///< by which the monitor is turned
    bool bottomUp = false;

    bool isUpright() const { return transform == WL_OUTPUT_TRANSFORM_NORMAL && !bottomUp; }
};

/// Whether pixels of a wl_shm format can be read.
bool isReadable(uint32_t format);

/// The rectangle, in pixels of the upright picture, in Format_RGB32; null when the format cannot be read. A large part
/// of a buffer that needs no converting is the buffer itself, which the picture then keeps; alpha is made opaque there.
QImage part(const std::shared_ptr<SharedBuffer> &buffer, Orientation orientation, const QRect &pixelRect);

} // namespace tessaly::FramePixels
