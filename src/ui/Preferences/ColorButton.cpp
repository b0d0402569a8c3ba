// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Preferences/ColorButton.h"

#include "core/Imaging/ColorHex.h"
#include "ui/Style/Appearance.h"

#include <QColorDialog>
#include <QEvent>
#include <QPainter>

namespace tessaly {

ColorButton::ColorButton(QString title, QWidget *parent) : QPushButton(parent), m_title(std::move(title))
{
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &ColorButton::pick);
}

void ColorButton::setColor(const QString &hex)
{
    m_color = ColorHex::toColor(hex);
    setText(ColorHex::toHex(m_color));
    setAccessibleDescription(text());
    drawSwatch();
}

void ColorButton::drawSwatch()
{
    constexpr int largestScale = 3; // the icon is scaled down from it
    const int side = iconSize().height();
    QPixmap swatch(QSize(side, side) * largestScale);
    swatch.fill(Qt::transparent);
    QPainter painter(&swatch);
    painter.scale(largestScale, largestScale);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(m_color);
    painter.setPen(Colors::outline());
    painter.drawEllipse(QRectF(0.5, 0.5, side - 1, side - 1));
    painter.end();
    swatch.setDevicePixelRatio(largestScale);
    setIcon(swatch);
}

void ColorButton::changeEvent(QEvent *event)
{
    QPushButton::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && m_color.isValid())
        drawSwatch();
}

void ColorButton::pick()
{
    const QColor color = QColorDialog::getColor(m_color, this, m_title);
    if (color.isValid())
        Q_EMIT picked(ColorHex::toHex(color));
}

} // namespace tessaly
