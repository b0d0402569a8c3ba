// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/QuickAccess/FloatPlace.h"

#include "ui/Toast/FloatingPanel.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <QWindow>

namespace tessaly {

QScreen &screenWithPointer()
{
    QScreen *screen = QGuiApplication::screenAt(QCursor::pos());
    return screen ? *screen : *QGuiApplication::primaryScreen();
}

void FloatPlace::prepare(QScreen &screen, const QRect &rect, WindowLayers::Keyboard keyboard)
{
    m_rect = rect;
    m_screen = &screen;
    m_window.setScreen(&screen);
    m_window.setGeometry(rect);
    m_window.winId(); // makes the native window
    m_layers.prepareFloat(*m_window.windowHandle(), screen, withinScreen(), keyboard);
}

void FloatPlace::move(const QRect &rect)
{
    if (rect == m_rect)
        return;
    constexpr qsizetype mostUnanswered = 32; // not every window system answers
    if (rect.topLeft() != m_rect.topLeft())
        m_asked += rect.topLeft();
    if (m_asked.size() > mostUnanswered)
        m_asked.removeFirst();
    m_rect = rect;
    moveAgain();
}

void FloatPlace::moveTo(QScreen &screen, const QRect &rect, WindowLayers::Keyboard keyboard)
{
    m_asked.clear();
    m_rect = rect;
    m_screen = &screen;
    m_layers.prepareFloat(*m_window.windowHandle(), screen, rect.translated(-screen.geometry().topLeft()), keyboard);
}

void FloatPlace::moveAgain() { m_layers.moveFloat(*m_window.windowHandle(), withinScreen()); }

void FloatPlace::wasMoved(QPoint topLeft)
{
    const qsizetype answered = m_asked.lastIndexOf(topLeft);
    if (answered >= 0) {
        m_asked.remove(0, answered + 1);
        return;
    }
    m_asked.clear();
    m_rect.moveTopLeft(topLeft);
}

/// Qt takes a window that lies over an edge for one of the screen with its middle.
QScreen &FloatPlace::screen() const
{
    return windowsHaveOpacity() || !m_screen ? *m_window.windowHandle()->screen() : *m_screen;
}

QRect FloatPlace::withinScreen() const { return m_rect.translated(-screen().geometry().topLeft()); }

} // namespace tessaly
