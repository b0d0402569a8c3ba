// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/ScreenCopy.h"

#include <wlr-screencopy-unstable-v1.h>

namespace tessaly {

/// One picture on its way.
struct ScreenCopy::Frame {
    enum class State { Announced, Offered, Ready, Failed };

    static const zwlr_screencopy_frame_v1_listener listener;
    static Frame &of(void *data) { return *static_cast<Frame *>(data); }

    std::optional<SharedBuffer::Layout> layout;
    bool bottomUp = false;
    State state = State::Announced;
};

const zwlr_screencopy_frame_v1_listener ScreenCopy::Frame::listener {
    .buffer =
        [](void *data, zwlr_screencopy_frame_v1 *frame, uint32_t format, uint32_t width, uint32_t height,
            uint32_t stride) {
            // From version 3 on several may be named before buffer_done; the first that can be read is taken.
            if (!of(data).layout && FramePixels::isReadable(format))
                of(data).layout = SharedBuffer::Layout { format, QSize(int(width), int(height)), int(stride) };
            if (zwlr_screencopy_frame_v1_get_version(frame) < ZWLR_SCREENCOPY_FRAME_V1_BUFFER_DONE_SINCE_VERSION)
                of(data).state = State::Offered;
        },
    .flags = [](void *data, zwlr_screencopy_frame_v1 *,
                 uint32_t flags) { of(data).bottomUp = (flags & ZWLR_SCREENCOPY_FRAME_V1_FLAGS_Y_INVERT) != 0; },
    .ready
    = [](void *data, zwlr_screencopy_frame_v1 *, uint32_t, uint32_t, uint32_t) { of(data).state = State::Ready; },
    .failed = [](void *data, zwlr_screencopy_frame_v1 *) { of(data).state = State::Failed; },
    .damage = [](void *, zwlr_screencopy_frame_v1 *, uint32_t, uint32_t, uint32_t, uint32_t) {},
    .linux_dmabuf = [](void *, zwlr_screencopy_frame_v1 *, uint32_t, uint32_t, uint32_t) {},
    .buffer_done = [](void *data, zwlr_screencopy_frame_v1 *) { of(data).state = State::Offered; },
};

ScreenCopy::ScreenCopy(std::shared_ptr<WaylandConnection> connection) :
    m_connection(std::move(connection)),
    m_manager(m_connection->bind<zwlr_screencopy_manager_v1>(zwlr_screencopy_manager_v1_interface, 3)),
    m_sharing(m_connection->bind<wl_shm>(wl_shm_interface, 1))
{
}

ScreenCopy::~ScreenCopy()
{
    if (m_sharing)
        wl_shm_destroy(m_sharing);
    if (m_manager)
        zwlr_screencopy_manager_v1_destroy(m_manager);
}

QImage ScreenCopy::capture(const WaylandOutput &output, const QRect &pixelRect)
{
    const auto orientation = FramePixels::Orientation { output.transform };
    const QString name = output.name;
    Frame frame;
    const std::unique_ptr<zwlr_screencopy_frame_v1, decltype(&zwlr_screencopy_frame_v1_destroy)> request(
        zwlr_screencopy_manager_v1_capture_output(m_manager, 0, output.output), &zwlr_screencopy_frame_v1_destroy);
    zwlr_screencopy_frame_v1_add_listener(request.get(), &Frame::listener, &frame);
    if (!m_connection->dispatchUntil([&] { return frame.state != Frame::State::Announced; })
        || frame.state == Frame::State::Failed || !frame.layout)
        return {};
    const auto buffer = bufferFor(name, *frame.layout);
    if (!buffer)
        return {};
    zwlr_screencopy_frame_v1_copy(request.get(), buffer->buffer());
    if (!m_connection->dispatchUntil([&] { return frame.state != Frame::State::Offered; })
        || frame.state == Frame::State::Failed)
        return {};
    return FramePixels::part(buffer, { orientation.transform, frame.bottomUp }, pixelRect);
}

std::shared_ptr<SharedBuffer> ScreenCopy::bufferFor(const QString &outputName, const SharedBuffer::Layout &layout)
{
    auto &kept = m_kept[outputName];
    if (!kept || kept.use_count() > 1 || kept->layout() != layout)
        kept = SharedBuffer::create(m_connection, m_sharing, layout);
    return kept;
}

} // namespace tessaly
