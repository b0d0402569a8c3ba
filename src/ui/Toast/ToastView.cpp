// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Toast/ToastView.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace tessaly {

ToastView::ToastView(const QString &message, int mostWidth) :
    FloatingPanel(Qt::ToolTip | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus, 12),
    m_message(message)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(message);
    QFont words = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    words.setPixelSize(13);
    words.setWeight(QFont::Medium);
    setFont(words);
    const int width = static_cast<int>(std::ceil(QFontMetricsF(words).horizontalAdvance(message))) + air;
    resize(std::min(width, mostWidth), usualHeight);
}

void ToastView::paintEvent(QPaintEvent *)
{
    constexpr double opacity = 0.82;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(255, 255, 255, 50)); // it is seen on black, too
    painter.setBrush(QColor::fromRgbF(0, 0, 0, opacity));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius(), cornerRadius());
    painter.setPen(Qt::white);
    const int room = width() - air / 2;
    painter.drawText(rect(), Qt::AlignCenter, fontMetrics().elidedText(m_message, Qt::ElideRight, room));
}

} // namespace tessaly
