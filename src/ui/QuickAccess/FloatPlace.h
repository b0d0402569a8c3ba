// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/WindowLayers.h"

#include <QList>
#include <QPointer>
#include <QScreen>

class QWidget;

namespace tessaly {

/// The screen with the pointer, where the user looks; the primary one when the pointer is on none. On Wayland the
/// pointer was where a window of this program last saw it: on the screen of the selection that has just ended.
QScreen &screenWithPointer();

/// Where a floating window lies, in Qt's points of the whole desktop. Windows say so themselves on X11 only, and late.
class FloatPlace {
public:
    /// Keeps both.
    FloatPlace(QWidget &window, WindowLayers &layers) : m_window(window), m_layers(layers) { }

    /// Makes the native window, unseen.
    void prepare(QScreen &screen, const QRect &rect, WindowLayers::Keyboard keyboard);
    void move(const QRect &rect);
    /// To another screen, where a window belongs to one, as on Wayland.
    void moveTo(QScreen &screen, const QRect &rect, WindowLayers::Keyboard keyboard);
    /// To where it should be, when others may have moved it.
    void moveAgain();
    /// The window system tells where the window is: the answer to a move of ours, or a move by the user.
    void wasMoved(QPoint topLeft);

    const QRect &rect() const { return m_rect; }
    /// The one that the window belongs to, where it belongs to one, as on Wayland; Qt's guess elsewhere.
    QScreen &screen() const;

private:
    QRect withinScreen() const;

    QWidget &m_window;
    WindowLayers &m_layers;
    QPointer<QScreen> m_screen; ///< that the layers were told
    QRect m_rect;
    QList<QPoint> m_asked; ///< moves that have not been answered, the oldest first
};

} // namespace tessaly
