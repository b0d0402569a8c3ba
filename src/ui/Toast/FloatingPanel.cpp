// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Toast/FloatingPanel.h"

#include "ui/Style/CaptureProperties.h"

#include <QAccessible>
#include <QGuiApplication>
#include <QStyle>

#include <cmath>

namespace tessaly {

bool windowsHaveOpacity() { return !QGuiApplication::platformName().startsWith(u"wayland"); }

FloatingPanel::FloatingPanel(Qt::WindowFlags flags, double cornerRadius) :
    QWidget(nullptr, flags | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::NoDropShadowWindowHint),
    m_cornerRadius(cornerRadius)
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setProperty(CaptureProperties::ends, true);
    if (windowsHaveOpacity())
        setWindowOpacity(0);
    constexpr int fadeMilliseconds = 180;
    const bool moves = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
    m_fade.setDuration(moves ? fadeMilliseconds : 0);
    m_fade.setEasingCurve(QEasingCurve::InOutQuad);
    connect(&m_fade, &QVariantAnimation::valueChanged, this,
        [this](const QVariant &opacity) { setWindowOpacity(opacity.toDouble()); });
    connect(&m_fade, &QVariantAnimation::finished, this, [this] {
        if (windowOpacity() <= 0)
            close();
    });
}

void FloatingPanel::fadeIn()
{
    show();
    raise();
    fadeTo(1);
}

void FloatingPanel::fadeOut() { fadeTo(0); }

void FloatingPanel::announce()
{
    if (!QAccessible::isActive())
        return;
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void FloatingPanel::fadeTo(double opacity)
{
    m_fade.stop();
    if (!windowsHaveOpacity()) {
        if (opacity <= 0)
            close();
        return;
    }
    m_fade.setStartValue(windowOpacity());
    m_fade.setEndValue(opacity);
    m_fade.start();
}

/// Without a compositor what is transparent would be black. The mask keeps every pixel that the corners touch.
void FloatingPanel::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    QRegion touched(rect());
    for (int y = 0; y < m_cornerRadius; ++y) {
        const double rise = std::max(0.0, m_cornerRadius - y - 1);
        const int inset = static_cast<int>(m_cornerRadius - std::sqrt(m_cornerRadius * m_cornerRadius - rise * rise));
        for (const int row : { y, height() - 1 - y })
            touched -= QRegion(0, row, inset, 1) + QRegion(width() - inset, row, inset, 1);
    }
    setMask(touched);
}

} // namespace tessaly
