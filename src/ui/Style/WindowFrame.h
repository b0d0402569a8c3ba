// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QRect>

#include <optional>

namespace tessaly {

/// Where a window stood, to put it back there. In logical pixels of the desktop, without the window's own frame.
struct WindowFrame {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool maximized = false;

    static WindowFrame of(const QRect &rect, bool maximized);
    QRect rect() const { return { x, y, width, height }; }

    QByteArray toJson() const;
    /// Empty for what is no frame, or one without area.
    static std::optional<WindowFrame> fromJson(const QByteArray &json);

    /// Whether enough of the window would be on a screen to be grabbed. `available` are the screens without their bars.
    bool isReachable(const QList<QRect> &available) const;

    bool operator==(const WindowFrame &) const = default;
};

} // namespace tessaly
