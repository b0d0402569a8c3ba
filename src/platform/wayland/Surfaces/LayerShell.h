// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPointer>
#include <QRect>
#include <QScreen>

#include <memory>

class QWindow;

namespace tessaly {

/// Where a window lies above all others.
struct LayerPlace {
    enum class Keyboard { Never, OnClick, Always };

    QPointer<QScreen> screen;
    QRect rect; ///< in points, origin at the screen's top left; empty for the whole screen
    Keyboard keyboard = Keyboard::Never;
};

/// The compositor's layers, for windows of Qt.
class LayerShell {
public:
    /// On Qt's own connection; null where the compositor has no layers, or this Qt gives no access to its surfaces.
    static std::unique_ptr<LayerShell> create();
    virtual ~LayerShell() = default;

    /// From now on the window is shown there, or, when it is known already, moves there. It must not have been shown
    /// before the first time. Menus and tool tips that it opens follow.
    virtual void place(QWindow &window, const LayerPlace &place) = 0;
    /// Changes the rectangle of a window that has a place.
    virtual void move(QWindow &window, const QRect &rect) = 0;

    /// Clicks on the window go to what lies below.
    virtual void setPassesClicks(QWindow &window, bool passes) = 0;

    /// Returns when the compositor has done all that Qt has asked for.
    virtual void waitForCompositor() = 0;
};

} // namespace tessaly
