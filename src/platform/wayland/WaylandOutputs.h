// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Screen/Display.h"
#include "platform/wayland/WaylandConnection.h"

#include <QSize>

struct zxdg_output_manager_v1;
struct zxdg_output_v1;

namespace tessaly {

/// One monitor as the compositor describes it.
struct WaylandOutput {
    explicit WaylandOutput(uint32_t number) : globalName(number) { }
    ~WaylandOutput();
    WaylandOutput(const WaylandOutput &) = delete;
    WaylandOutput &operator=(const WaylandOutput &) = delete;

    uint32_t globalName;
    wl_output *output = nullptr;
    zxdg_output_v1 *extra = nullptr; ///< null where the compositor does not describe its layout
    QString name;
    QPoint position; ///< in points, as wl_output tells it
    QRect logicalRect; ///< in points; empty until it is known
    QSize modeSize; ///< device pixels as the monitor lies, before it is turned
    int32_t transform = WL_OUTPUT_TRANSFORM_NORMAL;
    int32_t wholeScale = 1;

    bool isTurnedSideways() const { return transform % 2 == 1; }
    /// Absent until the compositor has told everything.
    std::optional<Display> display() const;
};

/// The monitors of a compositor, kept up to date as they come and go.
class WaylandOutputs {
public:
    /// The connection lives longer.
    explicit WaylandOutputs(WaylandConnection &connection);
    ~WaylandOutputs();
    WaylandOutputs(const WaylandOutputs &) = delete;
    WaylandOutputs &operator=(const WaylandOutputs &) = delete;

    /// The one at the layout's origin first, the others from left to right: Wayland knows no primary monitor.
    QList<Display> displays() const;

    /// Null when there is none of that name.
    const WaylandOutput *find(const QString &name) const;

private:
    void add(const WaylandConnection::Global &global);

    WaylandConnection &m_connection;
    zxdg_output_manager_v1 *m_manager = nullptr;
    std::vector<std::unique_ptr<WaylandOutput>> m_outputs;
};

} // namespace tessaly
