// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/CountdownWindow.h"

#include "core/Desktop/WindowLayers.h"
#include "ui/Overlay/CountdownPanel.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace tessaly {

struct CountdownWindow::Implementation {
    WindowLayers &layers;
    CountdownPanel *panel = nullptr; ///< while it is shown

    void close()
    {
        if (!panel)
            return;
        layers.watchEscape({});
        panel->hide();
        std::exchange(panel, nullptr)->deleteLater(); // it may be in the middle of a click
    }
};

CountdownWindow::CountdownWindow(WindowLayers &layers) :
    m_implementation(std::make_unique<Implementation>(Implementation { layers }))
{
}

CountdownWindow::~CountdownWindow()
{
    if (m_implementation->panel)
        m_implementation->layers.watchEscape({});
    delete m_implementation->panel;
}

void CountdownWindow::show(int seconds, std::function<void()> onClick)
{
    m_implementation->close();
    auto *panel = new CountdownPanel(onClick);
    m_implementation->panel = panel;
    QScreen *screen = QGuiApplication::primaryScreen();
    const QSize side(CountdownPanel::windowSide, CountdownPanel::windowSide);
    const QSize margin = (screen->size() - side) / 2;
    panel->winId(); // makes the native window
    m_implementation->layers.prepareFloat(*panel->windowHandle(), *screen,
        QRect(QPoint(margin.width(), margin.height()), side), WindowLayers::Keyboard::Never);
    panel->setHearsEscape(m_implementation->layers.watchEscape(std::move(onClick)));
    panel->setNumber(seconds);
    panel->show();
}

void CountdownWindow::setNumber(int seconds)
{
    if (m_implementation->panel)
        m_implementation->panel->setNumber(seconds);
}

void CountdownWindow::hide() { m_implementation->close(); }

} // namespace tessaly
