// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Tray/TrayIcon.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

#include <algorithm>

namespace tessaly {

namespace {

/// 16 to 48 points, and those that panels want at two pixels a point.
constexpr int pixelSides[] = { 16, 22, 24, 32, 44, 48, 64, 96 };

// The colours of the program's icon.
constexpr QRgb groundTop = 0xff2e7df6;
constexpr QRgb groundBottom = 0xff1d4fc4;
constexpr QRgb arrowColor = 0xffffd23f;

/// The corner of a viewfinder at (0, 0), opening to the lower right.
QPainterPath cornerMark(int length, int thickness)
{
    QPainterPath path;
    path.addRect(0, 0, length, thickness);
    path.addRect(0, thickness, thickness, length - thickness);
    return path;
}

/// From the middle to the upper right corner of a square, with its tip there.
void drawArrow(QPainter &painter, const QRect &square, int head, int thickness)
{
    const QRect across(square.right() + 1 - head, square.top(), head, thickness);
    const QRect down(square.right() + 1 - thickness, square.top(), thickness, head);
    painter.fillRect(across, QColor(arrowColor));
    painter.fillRect(down, QColor(arrowColor));
    painter.setPen(QPen(QColor(arrowColor), thickness, Qt::SolidLine, Qt::FlatCap));
    const QPointF start(square.right() + 1 - thickness / 2.0, square.top() + thickness / 2.0);
    const qreal length = square.width() * 0.58;
    painter.drawLine(start, start + QPointF(-length, length));
}

} // namespace

QImage TrayIcon::drawn(int pixelSide)
{
    QImage image(pixelSide, pixelSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient ground(0, 0, 0, pixelSide);
    ground.setColorAt(0, QColor(groundTop));
    ground.setColorAt(1, QColor(groundBottom));
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawRoundedRect(image.rect(), pixelSide * 0.22, pixelSide * 0.22);

    const int thickness = std::max(2, qRound(pixelSide * 0.1));
    const int inset = pixelSide * 3 / 16;
    const QRect square = image.rect().adjusted(inset, inset, -inset, -inset);
    const int length = (square.width() - std::max(2, pixelSide / 8)) / 2;
    const QPainterPath mark = cornerMark(length, thickness);
    for (const int turn : { 0, 180, 270 }) { // the arrow is in the fourth corner
        painter.save();
        painter.translate(pixelSide / 2.0, pixelSide / 2.0);
        painter.rotate(turn);
        painter.translate(-square.width() / 2.0, -square.width() / 2.0);
        painter.fillPath(mark, Qt::white);
        painter.restore();
    }
    drawArrow(painter, square, length, thickness);
    return image;
}

QIcon TrayIcon::icon()
{
    QIcon icon;
    for (const int side : pixelSides)
        icon.addPixmap(QPixmap::fromImage(drawn(side)));
    return icon;
}

} // namespace tessaly
