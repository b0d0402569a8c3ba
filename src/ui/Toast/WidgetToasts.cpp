// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Toast/WidgetToasts.h"

#include "core/Desktop/WindowLayers.h"
#include "ui/Toast/LinkToastView.h"
#include "ui/Toast/ToastView.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWindow>

namespace tessaly {

namespace {

constexpr int distanceFromBottom = 120; ///< of a notice's lower edge, logical pixels

/// Centred, with its lower edge that far above the area's.
void place(QWidget &panel, const QRect &area)
{
    panel.move(area.left() + (area.width() - panel.width()) / 2,
        area.top() + area.height() - distanceFromBottom - panel.height());
}

} // namespace

struct WidgetToasts::Implementation {
    ~Implementation()
    {
        delete notice;
        delete link;
    }

    /// Lets the panel come where it has been placed.
    void show(FloatingPanel &panel, WindowLayers::Keyboard keyboard) const
    {
        if (layers) {
            panel.winId(); // makes the native window
            QScreen *screen = QGuiApplication::primaryScreen();
            layers->prepareFloat(
                *panel.windowHandle(), *screen, panel.geometry().translated(-screen->geometry().topLeft()), keyboard);
            if (panel.windowFlags().testFlag(Qt::WindowTransparentForInput))
                layers->setPassesClicks(*panel.windowHandle(), true);
        }
        panel.fadeIn();
        panel.announce();
    }

    QPointer<ToastView> notice;
    QPointer<LinkToastView> link;
    WindowLayers *layers = nullptr;
};

WidgetToasts::WidgetToasts() : m_implementation(std::make_unique<Implementation>()) { }
WidgetToasts::~WidgetToasts() = default;
void WidgetToasts::setLayers(WindowLayers *layers) { m_implementation->layers = layers; }

void WidgetToasts::show(const QString &message, std::chrono::milliseconds duration)
{
    QPointer<ToastView> &notice = m_implementation->notice;
    QPointer<LinkToastView> &link = m_implementation->link;
    delete notice;
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    notice = new ToastView(message, screen.width() - ToastView::air);
    place(*notice, screen);
    constexpr int air = 8;
    if (link && link->geometry().intersects(notice->geometry())) // both can be read
        notice->move(notice->x(), link->y() - air - notice->height());
    m_implementation->show(*notice, WindowLayers::Keyboard::Never);
    QTimer::singleShot(duration, notice, &FloatingPanel::fadeOut);
}

void WidgetToasts::showLink(const QString &message, const QString &host, std::function<void()> onOpen)
{
    QPointer<ToastView> &notice = m_implementation->notice;
    QPointer<LinkToastView> &link = m_implementation->link;
    delete notice;
    delete link;
    link = new LinkToastView(message, host, std::move(onOpen), [] {});
    place(*link, QGuiApplication::primaryScreen()->availableGeometry());
    m_implementation->show(*link, WindowLayers::Keyboard::OnClick);
}

} // namespace tessaly
