// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Desktop/WindowLayers.h"

#include <QHash>
#include <QList>
#include <QScreen>
#include <QWindow>

namespace tessaly::test {

/// Shows covers and places windows where they are wanted, and remembers what it was told.
class FakeLayers final : public WindowLayers {
public:
    struct Float {
        QScreen *screen = nullptr;
        QList<QRect> rects; ///< all of its places, the first where it was made known; in points of the screen
        Keyboard keyboard = Keyboard::OnClick;
        bool passesClicks = false;
    };
    QHash<const QWindow *, Float> floats;
    QList<QWindow *> covers; ///< that are shown
    std::function<void()> escape;
    bool transparency = true;
    bool above = true;
    bool givesEscape = true;

    bool showsTransparency() const override { return transparency; }
    void prepareCover(QWindow &window, QScreen &screen) override
    {
        window.setGeometry(screen.geometry());
        window.create();
    }
    void showCover(QWindow &window) override
    {
        covers += &window;
        window.show();
    }
    void hideCover(QWindow &window) override
    {
        covers.removeAll(&window);
        window.hide();
    }
    bool canStayAbove() const override { return above; }
    bool canPlace() const override { return true; }
    void prepareFloat(QWindow &window, QScreen &screen, const QRect &rect, Keyboard keyboard) override
    {
        floats[&window] = { &screen, {}, keyboard };
        moveFloat(window, rect);
    }
    void moveFloat(QWindow &window, const QRect &rect) override
    {
        floats[&window].rects += rect;
        window.setGeometry(rect.translated(floats[&window].screen->geometry().topLeft()));
    }
    void setPassesClicks(QWindow &window, bool passes) override { floats[&window].passesClicks = passes; }
    bool watchEscape(std::function<void()> pressed) override
    {
        escape = std::move(pressed);
        return givesEscape;
    }
};

} // namespace tessaly::test
