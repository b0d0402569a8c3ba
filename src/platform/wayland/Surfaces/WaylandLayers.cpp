// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/wayland/Surfaces/WaylandLayers.h"

#include "platform/wayland/Surfaces/LayerShell.h"

#include <QWindow>

namespace tessaly {

WaylandLayers::WaylandLayers() : m_shell(qgetenv("TESSALY_LAYERS") == "none" ? nullptr : LayerShell::create()) { }
WaylandLayers::~WaylandLayers() = default;

void WaylandLayers::prepareCover(QWindow &window, QScreen &screen)
{
    window.setFlag(Qt::FramelessWindowHint);
    window.setScreen(&screen);
    window.setGeometry(screen.geometry());
    if (m_shell)
        m_shell->place(window, { &screen, {}, LayerPlace::Keyboard::Always });
    window.create();
}

void WaylandLayers::showCover(QWindow &window)
{
    if (m_shell)
        return window.show();
    window.showFullScreen();
    window.requestActivate();
}

void WaylandLayers::hideCover(QWindow &window)
{
    window.hide();
    if (m_shell)
        m_shell->waitForCompositor();
}

void WaylandLayers::prepareFloat(QWindow &window, QScreen &screen, const QRect &rect, Keyboard keyboard)
{
    if (m_shell) {
        const bool never = keyboard == Keyboard::Never;
        m_shell->place(window, { &screen, rect, never ? LayerPlace::Keyboard::Never : LayerPlace::Keyboard::OnClick });
        return;
    }
    window.setScreen(&screen);
    window.setFlag(Qt::WindowStaysOnTopHint);
    window.setFlag(Qt::WindowDoesNotAcceptFocus, keyboard == Keyboard::Never);
    window.setGeometry(rect.translated(screen.geometry().topLeft()));
}

void WaylandLayers::moveFloat(QWindow &window, const QRect &rect)
{
    if (m_shell)
        m_shell->move(window, rect);
    else
        window.resize(rect.size());
}

void WaylandLayers::setPassesClicks(QWindow &window, bool passes)
{
    if (m_shell)
        m_shell->setPassesClicks(window, passes);
    else
        window.setFlag(Qt::WindowTransparentForInput, passes);
}

} // namespace tessaly
