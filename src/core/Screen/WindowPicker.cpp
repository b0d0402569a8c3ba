// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Screen/WindowPicker.h"

namespace tessaly {

Outcome WindowPicker::prepare()
{
    release();
    auto windows = m_source.windows();
    if (!windows)
        return windows.failure();
    m_windows = std::move(*windows);
    return Done {};
}

std::optional<ScreenWindow> WindowPicker::windowAt(QPointF layoutPoint) const
{
    if (!m_picking && !m_windows.isEmpty()) {
        m_picking = true;
        m_source.prepare(m_windows);
    }
    // The edge after the last pixel belongs to what lies beside the window.
    const auto contains = [layoutPoint](const QRectF &rect) {
        return layoutPoint.x() >= rect.left() && layoutPoint.y() >= rect.top() && layoutPoint.x() < rect.right()
            && layoutPoint.y() < rect.bottom();
    };
    const auto found
        = std::ranges::find_if(m_windows, [&](const ScreenWindow &each) { return contains(each.layoutRect); });
    return found == m_windows.end() ? std::nullopt : std::optional(*found);
}

void WindowPicker::release()
{
    m_windows.clear();
    if (std::exchange(m_picking, false))
        m_source.release();
}

} // namespace tessaly
