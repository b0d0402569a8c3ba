// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Editing/EditorZoom.h"

#include <algorithm>

namespace tessaly {

void EditorZoom::setScale(double scale)
{
    scale = std::clamp(scale, minFit, max);
    if (scale == m_scale)
        return;
    m_scale = scale;
    Q_EMIT changed();
}

void EditorZoom::zoomIn() { setScale(std::min(m_scale * 1.25, max)); }
void EditorZoom::zoomOut() { setScale(std::min(std::max(m_scale / 1.25, minStep), max)); }

void EditorZoom::fit(QSizeF imageSize)
{
    if (imageSize.isEmpty() || m_viewportSize.isEmpty())
        return;
    constexpr double air = 48;
    const double width = std::max(m_viewportSize.width() - air, 1.0);
    const double height = std::max(m_viewportSize.height() - air, 1.0);
    setScale(std::min(width / imageSize.width(), height / imageSize.height()));
}

} // namespace tessaly
