// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <functional>

class QScreen;
class QWindow;

namespace tessaly {

/// How windows of this program get above those of others: a matter of the window system that Qt does not cover. The
/// windows belong to the caller and are told nothing else; they are made known before they are first shown, and
/// forgotten by themselves when they are destroyed. Rectangles are in Qt's points of one screen, origin at its top
/// left. Main thread only.
class WindowLayers {
public:
    virtual ~WindowLayers();

    /// Whether see-through windows let others be seen; without it a cover shows a picture.
    virtual bool showsTransparency() const = 0;

    /// Whether the window system keeps what was sent to a window, so that a cover can be sent in parts, one after the
    /// other through a little memory. Otherwise the memory of a whole one stays with the window system.
    virtual bool takesParts() const { return false; }

    /// A window over everything on a screen: panels, full-screen windows, menus. It takes the keyboard when it is shown
    /// and leaves the focus as it was. Makes the native window, unseen.
    virtual void prepareCover(QWindow &window, QScreen &screen) = 0;
    virtual void showCover(QWindow &window) = 0;
    /// Gone from the window system when this returns, with the keyboard given back.
    virtual void hideCover(QWindow &window) = 0;

    /// Whether a floating window stays above others here, and whether it can be placed by the program.
    virtual bool canStayAbove() const = 0;
    virtual bool canPlace() const = 0;

    enum class Keyboard {
        Never, ///< the window never takes the focus
        OnClick,
    };
    /// A small window above all others, on every workspace. Where it cannot be placed the desktop chooses.
    virtual void prepareFloat(QWindow &window, QScreen &screen, const QRect &rect, Keyboard keyboard) = 0;
    virtual void moveFloat(QWindow &window, const QRect &rect) = 0;
    /// Clicks go to what lies below, or to the window again.
    virtual void setPassesClicks(QWindow &window, bool passes) = 0;

    /// Calls back at each press of Escape, whichever program has the focus, until it is called with an empty function.
    /// False where a desktop gives no key to a program without the focus: it will never be called then.
    virtual bool watchEscape(std::function<void()> pressed)
    {
        Q_UNUSED(pressed)
        return false;
    }
};

} // namespace tessaly
