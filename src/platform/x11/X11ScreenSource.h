// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/ScreenSource.h"

#include <memory>

namespace tessaly {

class DrawingPause;
class SegmentPool;
class SharedSegment;
class X11Connection;

/// The screen of an X server, read through shared memory where the server shares it.
class X11ScreenSource final : public ScreenSource {
public:
    /// Connects to the server that `display` names (":0"); empty means the environment's. Fails when none answers.
    /// Shared memory of the whole screen's size costs more in page faults, on both sides, than ten captures: it is made
    /// and kept for repeated use only, and one capture passes through a small piece in strips.
    static Result<std::unique_ptr<ScreenSource>> create(CaptureUse use, const QString &display = {});
    ~X11ScreenSource() override;

    Result<QList<Display>> displays() override;

    /// What lies outside the desktop is cut off. With repeated use the picture's pixels are the kept shared memory
    /// itself, not a copy: while a picture lives, the next capture takes other memory.
    void capture(const Shot &shot, Answer answer) override;
    bool canLeaveOutDesktopIcons() const override { return true; }
    /// Within half a second; see DrawingPause.
    void whenSettled(std::function<void()> then) override;
    /// One piece of shared memory for each monitor.
    void prepare() override;
    void release() override;

private:
    X11ScreenSource(CaptureUse use, std::shared_ptr<X11Connection> connection);

    /// `rootPixelRect` lies on the root window.
    QImage captureRoot(const QRect &rootPixelRect, bool inStrips);

    /// Not where the server has no shared memory, or its pixels need converting.
    bool canShareScreen() const;
    /// Null where shared memory is refused.
    QImage captureShared(const QRect &pixelRect);
    QImage captureInStrips(const QRect &pixelRect);

    /// Makes the server write the rectangle's pixels to the start of the segment.
    bool fill(const SharedSegment &segment, const QRect &pixelRect) const;

    CaptureUse m_use;
    std::shared_ptr<X11Connection> m_connection;
    std::unique_ptr<SegmentPool> m_pool;
    std::unique_ptr<DrawingPause> m_drawingPause;
};

} // namespace tessaly
