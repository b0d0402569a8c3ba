// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Toast/WidgetToasts.h"

#include "ui/Toast/LinkToastView.h"
#include "ui/Toast/ToastView.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QTimer>

namespace tessaly {

namespace {

constexpr int distanceFromBottom = 120; ///< of a notice's lower edge, logical pixels

/// Centred, with its lower edge that far above the area's.
void place(QWidget &panel, const QRect &area)
{
    panel.move(area.left() + (area.width() - panel.width()) / 2,
        area.top() + area.height() - distanceFromBottom - panel.height());
}

/// A screen reader says it without going there.
void speak(QWidget &panel)
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(&panel, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

} // namespace

struct WidgetToasts::Implementation {
    ~Implementation()
    {
        delete notice;
        delete link;
    }

    QPointer<ToastView> notice;
    QPointer<LinkToastView> link;
};

WidgetToasts::WidgetToasts() : m_implementation(std::make_unique<Implementation>()) { }
WidgetToasts::~WidgetToasts() = default;

void WidgetToasts::show(const QString &message, std::chrono::milliseconds duration)
{
    auto &[notice, link] = *m_implementation;
    delete notice;
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    notice = new ToastView(message, screen.width() - ToastView::air);
    place(*notice, screen);
    constexpr int air = 8;
    if (link && link->geometry().intersects(notice->geometry())) // both can be read
        notice->move(notice->x(), link->y() - air - notice->height());
    notice->fadeIn();
    speak(*notice);
    QTimer::singleShot(duration, notice, &FloatingPanel::fadeOut);
}

void WidgetToasts::showLink(const QString &message, const QString &host, std::function<void()> onOpen)
{
    auto &[notice, link] = *m_implementation;
    delete notice;
    delete link;
    link = new LinkToastView(message, host, std::move(onOpen), [] {});
    place(*link, QGuiApplication::primaryScreen()->availableGeometry());
    link->fadeIn();
    speak(*link);
}

} // namespace tessaly
