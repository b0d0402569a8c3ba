// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/ScreenSource.h"

#include <memory>

namespace tessaly {

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
    Result<RasterImage> capture(const QRect &pixelRect, double scale) override;

private:
    X11ScreenSource(CaptureUse use, std::shared_ptr<X11Connection> connection);

    /// Null where shared memory cannot be had or the server's pixels need converting.
    QImage captureShared(const QRect &pixelRect);
    QImage captureInStrips(const QRect &pixelRect);
    QImage captureThroughSocket(const QRect &pixelRect);

    /// Makes the server write the rectangle's pixels to the start of the segment.
    bool fillSegment(const QRect &pixelRect) const;

    CaptureUse m_use;
    std::shared_ptr<X11Connection> m_connection;
    std::shared_ptr<SharedSegment> m_segment;
};

} // namespace tessaly
