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
    static Result<std::unique_ptr<ScreenSource>> create(const QString &display = {});
    ~X11ScreenSource() override;

    Result<QList<Display>> displays() override;

    /// The picture's pixels are the kept shared memory itself, not a copy: while a picture lives, the next capture
    /// takes other memory. What lies outside the desktop is cut off.
    Result<RasterImage> capture(const QRect &pixelRect, double scale) override;

private:
    explicit X11ScreenSource(std::shared_ptr<X11Connection> connection);

    /// Null where shared memory cannot be had or the server's pixels need converting.
    QImage captureShared(const QRect &pixelRect);
    QImage captureThroughSocket(const QRect &pixelRect);

    std::shared_ptr<X11Connection> m_connection;
    std::shared_ptr<SharedSegment> m_segment;
};

} // namespace tessaly
