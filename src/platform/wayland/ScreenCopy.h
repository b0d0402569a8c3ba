// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/wayland/FramePixels.h"
#include "platform/wayland/WaylandOutputs.h"

struct zwlr_screencopy_manager_v1;

namespace tessaly {

/// What a compositor shows on a monitor, by wlr-screencopy. A compositor that offers only its successor,
/// ext-image-copy-capture, would be served by a class like this one.
class ScreenCopy {
public:
    explicit ScreenCopy(std::shared_ptr<WaylandConnection> connection);
    ~ScreenCopy();
    ScreenCopy(const ScreenCopy &) = delete;
    ScreenCopy &operator=(const ScreenCopy &) = delete;

    bool isOffered() const { return m_manager && m_sharing; }

    /// The rectangle, in device pixels of the upright monitor, in Format_RGB32, without the pointer, unless the
    /// compositor has no hardware for it and paints it into the picture itself (wlroots without a GPU). The compositor
    /// takes regions in points only, which no odd pixel has at scale 2: the whole monitor is copied, and cut. Null when
    /// the compositor did not give it.
    QImage capture(const WaylandOutput &output, const QRect &pixelRect);

    /// Gives the kept memory back.
    void release() { m_kept.clear(); }

private:
    struct Frame;

    /// Memory for a frame: what is kept for the monitor, unless a picture still shows it.
    std::shared_ptr<SharedBuffer> bufferFor(const QString &outputName, const SharedBuffer::Layout &layout);

    std::shared_ptr<WaylandConnection> m_connection;
    zwlr_screencopy_manager_v1 *m_manager;
    wl_shm *m_sharing;
    QHash<QString, std::shared_ptr<SharedBuffer>> m_kept; ///< by the monitor's name
};

} // namespace tessaly
