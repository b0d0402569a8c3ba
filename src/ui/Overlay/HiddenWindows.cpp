// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Overlay/HiddenWindows.h"

#include "ui/Style/CaptureProperties.h"

#include <QApplication>

namespace tessaly {

namespace {

bool hasTitleBar(const QWidget &window)
{
    const bool isUsual = window.windowType() == Qt::Window || window.windowType() == Qt::Dialog;
    return isUsual && !window.windowFlags().testFlag(Qt::FramelessWindowHint);
}

/// A question that waits for its answer is not taken away, nor what it belongs to.
bool isAsking(const QWidget &window)
{
    const auto asks = [&](const QWidget *other) {
        return other->isVisible() && other->isModal()
            && (other == &window || (other->parentWidget() && other->parentWidget()->window() == &window));
    };
    return std::ranges::any_of(QApplication::topLevelWidgets(), asks);
}

bool isHiddenForCapture(const QWidget &window)
{
    if (!window.isVisible() || window.isMinimized() || window.isFullScreen() || isAsking(window))
        return false;
    return hasTitleBar(window) || window.property(CaptureProperties::hides).toBool();
}

} // namespace

HiddenWindows::HiddenWindows()
{
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &HiddenWindows::noteFocus);
}

void HiddenWindows::noteFocus(QWindow *window)
{
    if (!window)
        return;
    m_focused.removeIf([=](const QPointer<QWindow> &each) { return !each || each == window; });
    m_focused += window;
}

/// Desktops lay the window with the focus on top; they tell no program more of the order.
qsizetype HiddenWindows::height(const QWidget *widget) const { return m_focused.indexOf(widget->windowHandle()); }

QList<quint64> HiddenWindows::hide()
{
    restore();
    QList<quint64> ids;
    QWidgetList hiding;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible() && window->property(CaptureProperties::ends).toBool()) {
            ids += window->winId();
            window->close();
        } else if (isHiddenForCapture(*window)) {
            hiding += window;
        }
    }
    std::ranges::stable_sort(hiding, {}, [this](const QWidget *window) { return height(window); });
    for (QWidget *window : hiding) {
        ids += window->winId();
        m_hidden += Hidden { window, window->pos() };
    }
    // The last one that is shown must not look like the program's end.
    const bool quits = QGuiApplication::quitOnLastWindowClosed();
    QGuiApplication::setQuitOnLastWindowClosed(false);
    for (QWidget *window : hiding)
        window->hide();
    QGuiApplication::setQuitOnLastWindowClosed(quits);
    return ids;
}

void HiddenWindows::restore()
{
    for (const Hidden &hidden : std::exchange(m_hidden, {})) {
        QWidget *window = hidden.widget;
        if (!window || window->isVisible())
            continue;
        if (!window->isMaximized())
            window->move(hidden.place); // or the desktop may choose another place
        const bool quiet = window->testAttribute(Qt::WA_ShowWithoutActivating);
        window->setAttribute(Qt::WA_ShowWithoutActivating);
        window->show();
        window->setAttribute(Qt::WA_ShowWithoutActivating, quiet);
    }
}

} // namespace tessaly
