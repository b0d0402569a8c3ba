// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Capture/ScreenSource.h"

#include <memory>

namespace tessaly {

/// The screen of an X server, read through shared memory.
class X11ScreenSource final : public ScreenSource {
public:
    /// Connects to the server that `display` names (":0"); empty means the environment's. Fails when none answers.
    static Result<std::unique_ptr<ScreenSource>> create(const QString &display = {});
    ~X11ScreenSource() override;

    Result<QList<Display>> displays() override;
    Result<RasterImage> capture(const QRect &pixelRect, double scale) override;

private:
    struct Connection;
    explicit X11ScreenSource(std::unique_ptr<Connection> connection);

    std::unique_ptr<Connection> m_connection;
};

} // namespace tessaly
