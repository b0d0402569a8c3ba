// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/WaylandOutputs.h"

#include <cmath>

#include <xdg-output-unstable-v1.h>

namespace tessaly {

namespace {

WaylandOutput &outputOf(void *data) { return *static_cast<WaylandOutput *>(data); }

const wl_output_listener outputListener {
    .geometry =
        [](void *data, wl_output *, int32_t x, int32_t y, int32_t, int32_t, int32_t, const char *, const char *,
            int32_t transform) {
            outputOf(data).position = QPoint(x, y);
            outputOf(data).transform = transform;
        },
    .mode =
        [](void *data, wl_output *, uint32_t flags, int32_t width, int32_t height, int32_t) {
            if (flags & WL_OUTPUT_MODE_CURRENT)
                outputOf(data).modeSize = QSize(width, height);
        },
    .done = [](void *, wl_output *) {},
    .scale = [](void *data, wl_output *, int32_t scale) { outputOf(data).wholeScale = scale; },
    .name = [](void *data, wl_output *, const char *name) { outputOf(data).name = QString::fromUtf8(name); },
    .description = [](void *, wl_output *, const char *) {},
};

const zxdg_output_v1_listener extraListener {
    .logical_position
    = [](void *data, zxdg_output_v1 *, int32_t x, int32_t y) { outputOf(data).logicalRect.moveTo(x, y); },
    .logical_size = [](void *data, zxdg_output_v1 *, int32_t width,
                        int32_t height) { outputOf(data).logicalRect.setSize(QSize(width, height)); },
    .done = [](void *, zxdg_output_v1 *) {},
    .name = [](void *data, zxdg_output_v1 *, const char *name) { outputOf(data).name = QString::fromUtf8(name); },
    .description = [](void *, zxdg_output_v1 *, const char *) {},
};

/// Compositors tell whole points only, so 1.5 must be found from 1280 pixels on 853 points: it is the nearest multiple
/// of 1/120, Wayland's own step of scales, which gives these points.
double scaleOf(const QSize &pixels, const QSize &points)
{
    const double measured = double(pixels.width()) / points.width();
    const double stepped = std::round(measured * 120) / 120;
    return std::abs(pixels.width() / stepped - points.width()) < 1 ? stepped : measured;
}

} // namespace

WaylandOutput::~WaylandOutput()
{
    if (extra)
        zxdg_output_v1_destroy(extra);
    if (!output)
        return;
    if (wl_output_get_version(output) >= WL_OUTPUT_RELEASE_SINCE_VERSION)
        wl_output_release(output);
    else
        wl_output_destroy(output);
}

std::optional<Display> WaylandOutput::display() const
{
    const QSize pixels = isTurnedSideways() ? modeSize.transposed() : modeSize;
    QRect layout = logicalRect;
    if (!extra && wholeScale > 0)
        layout = QRect(position, pixels / wholeScale);
    if (name.isEmpty() || pixels.isEmpty() || layout.isEmpty())
        return {};
    return Display { name, layout, pixels, scaleOf(pixels, layout.size()), false };
}

WaylandOutputs::WaylandOutputs(WaylandConnection &connection) : m_connection(connection)
{
    m_manager = connection.bind<zxdg_output_manager_v1>(zxdg_output_manager_v1_interface, 3);
    connection.watch({ this, [this](const WaylandConnection::Global &global) { add(global); },
        [this](uint32_t name) {
            std::erase_if(m_outputs, [name](const auto &output) { return output->globalName == name; });
        } });
}

WaylandOutputs::~WaylandOutputs()
{
    m_connection.unwatch(this);
    if (m_manager)
        zxdg_output_manager_v1_destroy(m_manager);
}

void WaylandOutputs::add(const WaylandConnection::Global &global)
{
    if (global.interface != wl_output_interface.name || global.version < 2)
        return;
    auto output = std::make_unique<WaylandOutput>(global.name);
    output->output = static_cast<wl_output *>(m_connection.bind(global, wl_output_interface, 4));
    wl_output_add_listener(output->output, &outputListener, output.get());
    if (m_manager) {
        output->extra = zxdg_output_manager_v1_get_xdg_output(m_manager, output->output);
        zxdg_output_v1_add_listener(output->extra, &extraListener, output.get());
    }
    m_outputs.push_back(std::move(output));
}

QList<Display> WaylandOutputs::displays() const
{
    QList<Display> displays;
    for (const auto &output : m_outputs) {
        if (const auto display = output->display())
            displays.append(*display);
    }
    const auto key = [](const Display &display) {
        const QPoint at = display.layoutRect.topLeft();
        return std::tuple(!at.isNull(), at.x(), at.y());
    };
    std::ranges::stable_sort(displays, {}, key);
    if (!displays.isEmpty())
        displays.first().primary = true;
    return displays;
}

const WaylandOutput *WaylandOutputs::find(const QString &name) const
{
    const auto found = std::ranges::find_if(m_outputs, [&name](const auto &output) { return output->name == name; });
    return found == m_outputs.end() ? nullptr : found->get();
}

} // namespace tessaly
